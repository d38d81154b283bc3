// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the save sheet proposes, without extension: the source's name, at most 25 characters,
/// numbered where that would be the source itself. Looks at the disk.
[[nodiscard]] QString proposedName(
    const QString &sourcePath, const QString &folder, const QString &ext);
