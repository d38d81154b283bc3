// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"
#include "support/JSON.h"

#include <optional>

/// About what a result takes. Units: bytes; absent where nobody can say. Thread: any.
[[nodiscard]] std::optional<qint64> expectedSize(
    const VideoConstraints &entry, const JSON &conversionInfo);
