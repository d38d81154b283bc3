// SPDX-License-Identifier: MIT
#include "engine/Destination.h"

#include "support/FileSystem.h"
#include "support/Path.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <fcntl.h>
#include <mutex>
#include <unistd.h>

namespace {

bool mayWrite(const QString &path, int mode)
{
    return ::access(QFile::encodeName(path).constData(), mode) == 0;
}

std::optional<Outcome> obstacleAt(const QString &path)
{
    const QFileInfo file(path);
    if (file.isDir() || path.endsWith(u'/'))
        return Outcome{ Reason::DestinationIsFolder };
    if (file.isSymbolicLink() && !file.exists())
        return Outcome{ Reason::DestinationLeadsNowhere };
    if (file.exists() && !isRegularFile(path))
        return Outcome{ Reason::DestinationIsDevice };
    return std::nullopt;
}

bool isOneOf(const QString &path, const QStringList &paths)
{
    return std::any_of(paths.begin(), paths.end(),
        [&](const QString &otherPath) { return isSameFile(path, otherPath); });
}

// Never destroyed: a run's thread may go after the main one.
struct Claims {
    std::mutex mutex;
    std::condition_variable released;
    QSet<QString> places;
};

Claims &claims()
{
    static Claims &all = *new Claims;
    return all;
}

// One text for one place, however the path is spelled. The file itself need not exist.
QString place(const QString &path)
{
    const QFileInfo file(path);
    const QString target = file.canonicalFilePath();
    return target.isEmpty() ? QDir(file.dir().canonicalPath()).filePath(file.fileName()) : target;
}

}

std::optional<Outcome> refusalOf(const Destination &destination)
{
    const QString &path = destination.path;
    if (auto refusal = sourceRefusal(destination))
        return refusal;
    if (auto obstacle = obstacleAt(path))
        return obstacle;
    if (!QFileInfo::exists(path))
        return folderRefusal(Path::stringByDeletingLastPathComponent(path));
    QStringList others = destination.otherResults;
    others.removeAll(path);
    if (isOneOf(path, others))
        return Outcome{ Reason::DestinationIsOtherResult };
    if (!destination.overwrite)
        return Outcome{ Reason::DestinationExists };
    if (!mayWrite(path, W_OK))
        return Outcome{ Reason::DestinationNotWritable };
    // A partial result could not be removed from a read-only folder.
    return folderRefusal(Path::stringByDeletingLastPathComponent(linkTarget(path)));
}

std::optional<Outcome> folderRefusal(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists())
        return Outcome{ Reason::FolderMissing };
    if (!info.isDir())
        return Outcome{ Reason::FolderIsFile };
    if (!mayWrite(folder, W_OK | X_OK))
        return Outcome{ Reason::FolderNotWritable };
    return std::nullopt;
}

std::optional<Outcome> sourceRefusal(const Destination &destination)
{
    return isOneOf(destination.path, destination.sources)
        ? std::optional(Outcome{ Reason::DestinationIsSource })
        : std::nullopt;
}

std::optional<Outcome> createResultFile(const QString &path)
{
    const int fd = ::open(
        QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd >= 0)
        ::close(fd);
    // The tool runs into every other error as well, and reports it.
    return fd < 0 && errno == EEXIST ? std::optional(Outcome{ Reason::DestinationExists })
                                     : std::nullopt;
}

DestinationClaim::DestinationClaim(const QString &path, const std::function<bool()> &givesUp)
    : m_path(place(path))
{
    std::unique_lock lock(claims().mutex);
    while (claims().places.contains(m_path) && !givesUp())
        claims().released.wait_for(lock, std::chrono::milliseconds(100));
    if (claims().places.contains(m_path))
        return;
    claims().places.insert(m_path);
    m_held = true;
}

DestinationClaim::~DestinationClaim()
{
    if (!m_held)
        return;
    const std::lock_guard lock(claims().mutex);
    claims().places.remove(m_path);
    claims().released.notify_all();
}
