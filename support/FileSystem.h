// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What the file system says of a path. Links are followed. Thread: any.

[[nodiscard]] quint64 fileSize(const QString &path);
/// A file of ordinary content: no folder, FIFO, socket or device.
[[nodiscard]] bool isRegularFile(const QString &path);
/// The path leads to the same existing file as one of the others, through links, "..", or other
/// letter case too.
[[nodiscard]] bool isOneOf(const QString &path, const QStringList &paths);
/// What a link leads to; the path itself where there is no link, or one that leads nowhere.
[[nodiscard]] QString linkTarget(const QString &path);
