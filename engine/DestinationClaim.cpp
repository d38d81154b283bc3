// SPDX-License-Identifier: MIT
#include "engine/DestinationClaim.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <condition_variable>
#include <mutex>

namespace {

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
