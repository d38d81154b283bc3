// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Makes texts from outside fit for a terminal. Thread: any.

/// Without control characters, which a terminal would obey.
[[nodiscard]] QString printable(const QString &text);
[[nodiscard]] int columnsOf(const QString &text);
[[nodiscard]] QString leftJustified(const QString &text, int columns);
/// Cut in the middle.
[[nodiscard]] QString elided(const QString &text, int columns);
