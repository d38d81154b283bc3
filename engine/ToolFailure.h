// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

#include <QByteArray>

/// Why a run of the tool failed, read from its last lines. Thread: any.
[[nodiscard]] Outcome toolFailure(const QByteArray &output);
