// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the file system says of a path. Links are followed. Thread: any.

[[nodiscard]] quint64 fileSize(const QString &path);
/// A file of ordinary content: no folder, FIFO, socket or device.
[[nodiscard]] bool isRegularFile(const QString &path);
/// Both lead to one existing file, through links, "..", or other letter case too.
[[nodiscard]] bool isSameFile(const QString &path, const QString &otherPath);
/// What a link leads to; the path itself where there is no link, or one that leads nowhere.
[[nodiscard]] QString linkTarget(const QString &path);
