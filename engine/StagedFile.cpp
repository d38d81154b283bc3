// SPDX-License-Identifier: MIT
#include "engine/StagedFile.h"

#include "support/Path.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QString &path) { return QFile::encodeName(path); }

QString folderOf(const QString &path) { return QFileInfo(path).path(); }

// Eight random letters and digits.
QString hiddenName(const QString &destPath)
{
    const QString random = QUuid::createUuid().toString(QUuid::Id128).first(8);
    return u"%1/.video-converter-%2.%3"_s.arg(
        folderOf(destPath), random, Path::pathExtension(destPath));
}

Outcome refusalFor(int error)
{
    switch (error) {
    case ENOSPC:
        return { Reason::NoSpace };
    case EDQUOT:
        return { Reason::QuotaExceeded };
    case EROFS:
        return { Reason::ReadOnlyDisk };
    case ENAMETOOLONG:
        return { Reason::NameTooLong };
    case ENOENT:
        return { Reason::FolderMissing };
    case EIO:
        return { Reason::DiskError };
    default:
        return { Reason::FolderNotWritable };
    }
}

// In one step, and only if nothing stands there. Some file systems know one way, some the other.
bool renameToNew(const QByteArray &from, const QByteArray &to)
{
#ifdef Q_OS_LINUX
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
#endif
    if (::link(from.constData(), to.constData()) != 0)
        return false;
    ::unlink(from.constData());
    return true;
}

void syncFolder(const QString &folder)
{
    const int fd = ::open(bytesOf(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

}

StagedFile::StagedFile(QString destPath)
    : m_destPath(std::move(destPath))
{
}

StagedFile::~StagedFile() { drop(); }

std::optional<Outcome> StagedFile::create()
{
    drop();
    m_path = hiddenName(m_destPath);
    m_file = ::open(bytesOf(m_path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (m_file < 0)
        return refusalFor(errno);
    ::flock(m_file, LOCK_EX | LOCK_NB);
    m_entry.add(m_path);
    return std::nullopt;
}

std::optional<Outcome> StagedFile::moveIntoPlace(bool overwrite)
{
    const QByteArray from = bytesOf(m_path);
    const QByteArray to = bytesOf(m_destPath);
    struct stat older { };
    if (!overwrite || ::stat(to.constData(), &older) != 0) {
        if (!renameToNew(from, to))
            return errno == EEXIST ? Outcome{ Reason::DestinationExists } : refusalFor(errno);
    } else {
        ::fchmod(m_file, older.st_mode & 07777);
        if (::fsync(m_file) != 0 || ::rename(from.constData(), to.constData()) != 0)
            return refusalFor(errno);
        syncFolder(folderOf(m_destPath));
    }
    drop();
    return std::nullopt;
}

bool StagedFile::equalsOlder() const
{
    QFile staged(m_path);
    QFile older(m_destPath);
    if (staged.size() != older.size() || !staged.open(QIODevice::ReadOnly)
        || !older.open(QIODevice::ReadOnly))
        return false;
    constexpr qint64 piece = 1 << 20;
    while (!staged.atEnd()) {
        if (staged.read(piece) != older.read(piece))
            return false;
    }
    return true;
}

QString StagedFile::keepOlder() const
{
    const QString extension = Path::pathExtension(m_destPath);
    const QString base
        = extension.isEmpty() ? m_destPath : m_destPath.chopped(extension.size() + 1);
    for (int number = 1; number < 1000; ++number) {
        const QString mark = number == 1 ? u" (earlier)"_s : u" (earlier %1)"_s.arg(number);
        const QString kept = extension.isEmpty() ? base + mark : base + mark + u'.' + extension;
        // A second name first: at no moment is the older file without one.
        if (::link(bytesOf(m_destPath).constData(), bytesOf(kept).constData()) == 0)
            return kept;
        if (errno == EEXIST)
            continue;
        return renameToNew(bytesOf(m_destPath), bytesOf(kept)) ? kept : QString();
    }
    return {};
}

void StagedFile::drop()
{
    if (m_file < 0)
        return;
    QFile::remove(m_path);
    ::close(std::exchange(m_file, -1));
    m_entry.remove();
}
