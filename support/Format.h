// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <variant>
#include <vector>

using FormatArgument = std::variant<qint64, QString>;

/// Fills the directives of a format that may come from a translator or be composed at run time.
/// Numbers get the digits of the user's locale. Knows %d, %i, %u and %s, %@ with flags, widths and
/// length letters (which change nothing), positions as in %2$d, and %%. Any argument suits any
/// directive; a directive without an argument prints nothing; an unknown one stays as it stands.
/// Thread: any.
[[nodiscard]] QString formatted(
    const QString &format, const std::vector<FormatArgument> &arguments);
