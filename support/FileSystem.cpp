// SPDX-License-Identifier: MIT
#include "support/FileSystem.h"

#include <QFileInfo>

#include <optional>
#include <sys/stat.h>

namespace {

std::optional<std::pair<quint64, quint64>> idOf(const QString &path)
{
    struct stat file { };
    if (::stat(QFile::encodeName(path).constData(), &file) != 0)
        return std::nullopt;
    return std::pair{ file.st_dev, file.st_ino };
}

}

FileIds::FileIds(std::initializer_list<QString> paths)
{
    for (const QString &path : paths)
        add(path);
}

void FileIds::add(const QString &path)
{
    if (const auto id = idOf(path))
        m_ids.insert(*id);
}

bool FileIds::contains(const QString &path) const
{
    const auto id = idOf(path);
    return id && m_ids.contains(*id);
}

QString linkTarget(const QString &path)
{
    const QFileInfo file(path);
    return file.isSymbolicLink() && file.exists() ? file.canonicalFilePath() : path;
}
