// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

/// Path arithmetic on text alone; the disk is never asked. Thread: any.
namespace Path {

/// "/tmp/a.mov" and "/tmp/a.mov/" give "a.mov"; "/" gives "/"; empty text gives empty text.
[[nodiscard]] QString lastPathComponent(const QString &path);
/// Without the dot: ".mov" gives empty text, ".a.mov" gives "mov".
[[nodiscard]] QString pathExtension(const QString &path);
/// "/tmp/a.mov" gives "/tmp", "/tmp" gives "/", "a.mov" gives empty text.
[[nodiscard]] QString stringByDeletingLastPathComponent(const QString &path);
/// Drops one extension: "/tmp/a.b.mov" gives "/tmp/a.b", "/tmp/" gives "/tmp".
[[nodiscard]] QString stringByDeletingPathExtension(const QString &path);
/// A separator at either end counts as a component "/"; empty components are left out.
[[nodiscard]] QStringList pathComponents(const QString &path);
/// Joins with exactly one separator; an empty path gives the component alone.
[[nodiscard]] QString stringByAppendingPathComponent(const QString &path, const QString &component);
/// "/tmp/a" and "mov" give "/tmp/a.mov". Errors: absent for an empty extension or one with a
/// separator, and for a path without a name to extend.
[[nodiscard]] std::optional<QString> stringByAppendingPathExtension(
    const QString &path, const QString &extension);

}
