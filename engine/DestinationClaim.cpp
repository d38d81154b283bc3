// SPDX-License-Identifier: MIT
#include "engine/DestinationClaim.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <condition_variable>
#include <mutex>

namespace {

std::mutex claimsMutex;
std::condition_variable released;

QSet<QString> &claimed()
{
    static QSet<QString> paths;
    return paths;
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
    std::unique_lock lock(claimsMutex);
    while (claimed().contains(m_path) && !givesUp())
        released.wait_for(lock, std::chrono::milliseconds(100));
    if (claimed().contains(m_path))
        return;
    claimed().insert(m_path);
    m_held = true;
}

DestinationClaim::~DestinationClaim()
{
    if (!m_held)
        return;
    const std::lock_guard lock(claimsMutex);
    claimed().remove(m_path);
    released.notify_all();
}
