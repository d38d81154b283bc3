// SPDX-License-Identifier: MIT
#include "support/FileSystem.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <sys/stat.h>

namespace {

std::optional<struct stat> attributes(const QString &path)
{
    struct stat result { };
    if (::stat(QFile::encodeName(path).constData(), &result) != 0)
        return std::nullopt;
    return result;
}

}

quint64 fileSize(const QString &path)
{
    const auto file = attributes(path);
    return file ? static_cast<quint64>(file->st_size) : 0;
}

bool isRegularFile(const QString &path)
{
    const auto file = attributes(path);
    return file && S_ISREG(file->st_mode);
}

bool isOneOf(const QString &path, const QStringList &paths)
{
    const auto file = attributes(path);
    return file && std::any_of(paths.begin(), paths.end(), [&](const QString &otherPath) {
        const auto other = attributes(otherPath);
        return other && file->st_dev == other->st_dev && file->st_ino == other->st_ino;
    });
}

QString linkTarget(const QString &path)
{
    const QFileInfo file(path);
    return file.isSymbolicLink() && file.exists() ? file.canonicalFilePath() : path;
}
