// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The name without extension that the save sheet proposes: the source's, at most 25 characters.
/// Where that would be the source itself, with the next free number behind it. Thread: any; looks
/// at the disk.
[[nodiscard]] QString proposedName(
    const QString &sourcePath, const QString &folder, const QString &ext);
