// SPDX-License-Identifier: MIT
#include "engine/StagedList.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUuid>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestEntry = 8192;

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + u"/VideoConverter/staged files"_s;
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

}

namespace StagedList {

void Entry::add(const QString &stagedPath)
{
    remove();
    QDir().mkpath(folder());
    m_path = folder() + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_file = lockedFile(m_path, O_WRONLY | O_CREAT | O_EXCL);
    const QByteArray bytes = QFile::encodeName(stagedPath);
    if (m_file >= 0
        && ::write(m_file, bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0)
        remove();
}

void Entry::remove()
{
    if (m_file < 0)
        return;
    QFile::remove(m_path);
    ::close(std::exchange(m_file, -1));
}

QString stagedPathOf(const QByteArray &entry)
{
    static const QRegularExpression ours(uR"(\A/(?:.*/)?\.video-converter-[0-9a-f]{8}\.[^/]*\z)"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const QString path = QFile::decodeName(entry);
    const bool isExact = QFile::encodeName(path) == entry && !entry.contains('\0');
    return isExact && ours.match(path).hasMatch() ? path : QString();
}

void removeAbandoned()
{
    for (const QFileInfo &each : QDir(folder()).entryInfoList(QDir::Files | QDir::Hidden)) {
        const int entry = lockedFile(each.filePath(), O_RDONLY);
        if (entry < 0)
            continue;
        QFile file(each.filePath());
        const QString staged
            = file.open(QIODevice::ReadOnly) ? stagedPathOf(file.read(longestEntry)) : QString();
        if (const int held = staged.isEmpty() ? -1 : lockedFile(staged, O_RDONLY); held >= 0) {
            QFile::remove(staged);
            ::close(held);
        }
        file.remove();
        ::close(entry);
    }
}

}
