// SPDX-License-Identifier: MIT
#include "engine/StagedFile.h"

#include "engine/Progress.h"
#include "support/FileSystem.h"
#include "support/Path.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
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

// ".video-converter-0a1b2c.mp4"
QString hiddenName(const QString &destPath)
{
    const QString random = QUuid::createUuid().toString(QUuid::Id128).first(6);
    const QString extension = Path::pathExtension(destPath);
    return folderOf(destPath) + u"/.video-converter-"_s + random
        + (extension.isEmpty() ? QString() : u'.' + extension);
}

Outcome refusalFor(int error)
{
    static const QHash<int, Reason> reasons{ { ENOSPC, Reason::NoSpace },
        { EDQUOT, Reason::QuotaExceeded }, { EROFS, Reason::ReadOnlyDisk },
        { ENAMETOOLONG, Reason::NameTooLong }, { ENOENT, Reason::FolderMissing },
        { EIO, Reason::DiskError } };
    return { reasons.value(error, Reason::FolderNotWritable) };
}

// In one step, and only if nothing stands there. File systems differ in the ways that they know.
bool renameToNew(const QByteArray &from, const QByteArray &to)
{
#ifdef Q_OS_LINUX
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
#endif
    if (::link(from.constData(), to.constData()) == 0) {
        ::unlink(from.constData());
        return true;
    }
    if (errno == EEXIST || errno == ENOENT)
        return false;
    const int placeholder = ::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (placeholder < 0)
        return false;
    ::close(placeholder);
    return ::rename(from.constData(), to.constData()) == 0;
}

// Gives a file a second name, "NAME (earlier).ext"; empty when that can't be.
QString keepOlder(const QString &destPath)
{
    const QString extension = Path::pathExtension(destPath);
    const QString base = extension.isEmpty() ? destPath : destPath.chopped(extension.size() + 1);
    for (int number = 1; number < 1000; ++number) {
        const QString mark = number == 1 ? u" (earlier)"_s : u" (earlier %1)"_s.arg(number);
        QString kept = extension.isEmpty() ? base + mark : base + mark + u'.' + extension;
        // A second name first: at no moment is the older file without one.
        if (::link(bytesOf(destPath).constData(), bytesOf(kept).constData()) == 0)
            return kept;
        if (errno == EEXIST)
            continue;
        return renameToNew(bytesOf(destPath), bytesOf(kept)) ? kept : QString();
    }
    return {};
}

bool beginsWith(const QString &path, const QString &olderPath)
{
    QFile file(path);
    QFile older(olderPath);
    if (!file.open(QIODevice::ReadOnly) || !older.open(QIODevice::ReadOnly))
        return false;
    constexpr qint64 piece = 1 << 20;
    while (!older.atEnd()) {
        if (!file.read(piece).startsWith(older.read(piece)))
            return false;
    }
    return true;
}

void takeBack(const QString &kept, const QString &destPath)
{
    if (!renameToNew(bytesOf(kept), bytesOf(destPath)) && FileIds{ kept }.contains(destPath))
        QFile::remove(kept);
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
    // Else a name that is too long would only show at the end.
    struct stat older { };
    if (::lstat(bytesOf(m_destPath).constData(), &older) != 0 && errno == ENAMETOOLONG)
        return refusalFor(errno);
    for (int attempt = 0; m_file < 0 && attempt < 100; ++attempt) {
        m_path = hiddenName(m_destPath);
        // Listed first: whenever this program is killed, the next start finds the file.
        m_entry.add(m_path);
        m_file = ::open(bytesOf(m_path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (m_file < 0 && errno != EEXIST)
            break;
    }
    if (m_file < 0) {
        const Outcome refusal = refusalFor(errno);
        m_entry.remove();
        return refusal;
    }
    ::flock(m_file, LOCK_EX | LOCK_NB);
    return std::nullopt;
}

std::optional<Outcome> StagedFile::moveIntoPlace(
    bool overwrite, const Progress &progress, QString *keptPath)
{
    const QByteArray from = bytesOf(m_path);
    const QByteArray to = bytesOf(m_destPath);
    struct stat older { };
    if (renameToNew(from, to)) {
        close();
        return std::nullopt;
    }
    if (errno != EEXIST || ::stat(to.constData(), &older) != 0)
        return refusalFor(errno);
    if (!overwrite)
        return Outcome{ Reason::DestinationExists };
    if (!S_ISREG(older.st_mode))
        return Outcome{ Reason::DestinationIsFolder };
    [[maybe_unused]] const int owner = ::fchown(m_file, older.st_uid, older.st_gid);
    ::fchmod(m_file, older.st_mode & 0777);
    if (::fsync(m_file) != 0)
        return refusalFor(errno);
    // A cut video is cut alike at each try, and a cut copy is the whole one's beginning.
    if (keptPath && beginsWith(m_path, m_destPath))
        keptPath = nullptr;
    // All that may have taken its time, on a slow disk.
    if (progress.isCancelled())
        return Outcome{ Reason::Cancelled };
    if (keptPath && (*keptPath = keepOlder(m_destPath)).isEmpty())
        return refusalFor(errno);
    if (::rename(from.constData(), to.constData()) != 0) {
        const Outcome refusal = refusalFor(errno);
        if (keptPath)
            takeBack(*keptPath, m_destPath);
        return refusal;
    }
    syncFolder(folderOf(m_destPath));
    close();
    return std::nullopt;
}

void StagedFile::drop()
{
    if (m_file < 0)
        return;
    if (!QFile::remove(m_path)) {
        // Its folder may bear another name by now.
        const QString place = QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(m_file));
        if (Path::lastPathComponent(place) == Path::lastPathComponent(m_path))
            QFile::remove(place);
    }
    struct stat file { };
    if (::fstat(m_file, &file) != 0 || file.st_nlink > 0)
        m_entry.leave();
    close();
}

void StagedFile::close()
{
    ::close(std::exchange(m_file, -1));
    m_entry.remove();
}
