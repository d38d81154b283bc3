// SPDX-License-Identifier: MIT
#include "engine/StagedList.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUuid>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestEntry = 8192;

// One for each machine: where a home is shared, locks may count on their own machine only.
QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + u"/VideoConverter/staged files/"_s + QSysInfo::machineHostName();
}

// A file that nobody else has locked; -1 when there is none.
int lockedFile(const QString &path, int flags)
{
    const int fd = ::open(
        QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    struct stat file { };
    if (fd < 0
        || (::fstat(fd, &file) == 0 && S_ISREG(file.st_mode)
            && ::flock(fd, LOCK_EX | LOCK_NB) == 0))
        return fd;
    ::close(fd);
    return -1;
}

// One that is held, or lies on a disk that is not there now, stays on the list.
bool isGoneOrRemoved(const QString &staged)
{
    const int held = lockedFile(staged, O_RDWR);
    if (held < 0)
        return errno == ENOENT && QFileInfo::exists(QFileInfo(staged).path());
    const bool isRemoved = QFile::remove(staged);
    ::close(held);
    return isRemoved;
}

}

namespace StagedList {

void Entry::add(const QString &stagedPath)
{
    remove();
    QDir().mkpath(folder());
    const QByteArray bytes = QFile::encodeName(stagedPath);
    // Another program's start may take away an entry before it is locked.
    for (int attempt = 0; m_file < 0 && attempt < 3; ++attempt) {
        m_path = folder() + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
        m_file = lockedFile(m_path, O_WRONLY | O_CREAT | O_EXCL);
        struct stat entry { };
        if (m_file < 0)
            QFile::remove(m_path);
        else if (::fstat(m_file, &entry) != 0 || entry.st_nlink == 0
            || ::write(m_file, bytes.constData(), static_cast<std::size_t>(bytes.size()))
                != bytes.size())
            remove();
    }
}

void Entry::remove()
{
    if (m_file < 0)
        return;
    QFile::remove(m_path);
    leave();
}

void Entry::leave()
{
    if (m_file >= 0)
        ::close(std::exchange(m_file, -1));
}

QString stagedPathOf(const QByteArray &entry)
{
    static const QRegularExpression ours(
        uR"(\A/(?:.*/)?\.video-converter-[0-9a-f]{6}(?:\.[^/]*)?\z)"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const QString path = QFile::decodeName(entry);
    const bool isExact = QFile::encodeName(path) == entry && !entry.contains('\0');
    return isExact && ours.match(path).hasMatch() ? path : QString();
}

void removeAbandoned()
{
    for (const QFileInfo &each : QDir(folder()).entryInfoList(QDir::Files | QDir::Hidden)) {
        // Over NFS only a file that is open for writing can be locked.
        const int entry = lockedFile(each.filePath(), O_RDWR);
        if (entry < 0)
            continue;
        QFile file(each.filePath());
        const QString staged
            = file.open(QIODevice::ReadOnly) ? stagedPathOf(file.read(longestEntry)) : QString();
        if (staged.isEmpty() || isGoneOrRemoved(staged))
            file.remove();
        ::close(entry);
    }
}

}
