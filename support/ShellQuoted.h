// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Words as a shell's user would have to type them. Thread: any.
[[nodiscard]] QString shellQuoted(const QString &word);
[[nodiscard]] QString shellQuoted(const QStringList &words);
