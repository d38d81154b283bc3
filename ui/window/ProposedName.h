// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The source's name, at most 25 characters, numbered where that would be the source itself.
[[nodiscard]] QString proposedName(
    const QString &sourcePath, const QString &folder, const QString &ext);
