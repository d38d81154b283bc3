// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Makes texts from outside fit for a terminal or a shell. Thread: any.

/// Without control characters, which a terminal would obey.
[[nodiscard]] QString printable(const QString &text);
[[nodiscard]] QString shellQuoted(const QString &word);
[[nodiscard]] QString shellQuoted(const QStringList &words);
[[nodiscard]] int columnsOf(const QString &text);
[[nodiscard]] QString leftJustified(const QString &text, int columns);
/// Cut in the middle.
[[nodiscard]] QString elided(const QString &text, int columns);
