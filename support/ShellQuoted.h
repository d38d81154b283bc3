// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Words as a shell's user would have to type them. Thread: any.
[[nodiscard]] QString shellQuoted(QStringList words);
