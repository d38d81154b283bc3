// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Makes texts from outside fit for a terminal or a shell.
/// Thread: any.

/// Without control characters, which a terminal would obey.
[[nodiscard]] QString printable(const QString &text);
/// One word of a shell's command line.
[[nodiscard]] QString shellQuoted(const QString &word);
[[nodiscard]] QString shellQuoted(const QStringList &words);
/// Number of columns that a text takes on a terminal.
[[nodiscard]] int columnsOf(const QString &text);
/// Filled up with spaces to so many columns.
[[nodiscard]] QString leftJustified(const QString &text, int columns);
/// At most so many columns, cut in the middle.
[[nodiscard]] QString elided(const QString &text, int columns);
