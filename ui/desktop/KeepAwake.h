// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

/// The machine stays awake while the result lives, where the desktop allows it; it shows why.
[[nodiscard]] std::shared_ptr<void> keepAwake(const QString &reason);
