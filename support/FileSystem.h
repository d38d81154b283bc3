// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the file system says of a path. Links are followed.
/// Thread: any.

/// Size in bytes; 0 when the file can't be examined.
[[nodiscard]] quint64 fileSize(const QString &path);
/// A file of ordinary content: no folder, FIFO, socket or device.
[[nodiscard]] bool isRegularFile(const QString &path);
/// Both paths lead to one existing file, whatever their spelling: through links, "..", "//" or
/// other letter case.
[[nodiscard]] bool isSameFile(const QString &path, const QString &otherPath);
/// The file that a link leads to; the path itself where there is no link, or one that leads
/// nowhere.
[[nodiscard]] QString linkTarget(const QString &path);
