// SPDX-License-Identifier: MIT
#pragma once

#include "support/Localized.h"

#include <QString>

#include <variant>
#include <vector>

using FormatArgument = std::variant<qint64, QString>;

/// Fills %d, %i, %u, %s and %@ of a format, also with flags, widths, length letters and positions
/// as in %2$d. Numbers get the digits of the user's locale. A directive without an argument prints
/// nothing; an unknown one stays. Thread: any.
[[nodiscard]] QString formatted(
    const QString &format, const std::vector<FormatArgument> &arguments);
[[nodiscard]] QString formatted(
    const LocalizedText &format, const std::vector<FormatArgument> &arguments);
