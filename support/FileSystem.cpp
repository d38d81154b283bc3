// SPDX-License-Identifier: MIT
#include "support/FileSystem.h"

#include <QFileInfo>

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

FileIds::FileIds(std::initializer_list<QString> paths)
{
    for (const QString &path : paths)
        add(path);
}

void FileIds::add(const QString &path)
{
    if (const auto file = attributes(path))
        m_ids.insert({ file->st_dev, file->st_ino });
}

bool FileIds::contains(const QString &path) const
{
    const auto file = attributes(path);
    return file && m_ids.contains({ file->st_dev, file->st_ino });
}

QString linkTarget(const QString &path)
{
    const QFileInfo file(path);
    return file.isSymbolicLink() && file.exists() ? file.canonicalFilePath() : path;
}
