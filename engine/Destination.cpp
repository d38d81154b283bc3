// SPDX-License-Identifier: MIT
#include "engine/Destination.h"

#include "support/Path.h"

#include <QFileInfo>

#include <algorithm>
#include <unistd.h>

namespace {

bool mayWrite(const QString &path, int mode)
{
    return ::access(QFile::encodeName(path).constData(), mode) == 0;
}

// Results have names of their own: only a link leads from one to another.
bool isOtherResult(const Destination &destination)
{
    if (!QFileInfo(destination.path).isSymbolicLink())
        return false;
    const FileIds file{ destination.path };
    return std::any_of(destination.otherResults.begin(), destination.otherResults.end(),
        [&](const QString &other) { return other != destination.path && file.contains(other); });
}

}

std::optional<Outcome> refusalOf(const Destination &destination)
{
    const QString &path = destination.path;
    if (auto refusal = sourceRefusal(destination))
        return refusal;
    const QFileInfo file(path);
    if (file.isDir() || path.endsWith(u'/'))
        return Outcome{ Reason::DestinationIsFolder };
    if (file.isSymbolicLink() && !file.exists())
        return Outcome{ Reason::DestinationLeadsNowhere };
    if (!file.exists())
        return folderRefusal(Path::stringByDeletingLastPathComponent(path));
    if (!file.isFile())
        return Outcome{ Reason::DestinationIsDevice };
    if (isOtherResult(destination))
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
    return destination.sources.contains(destination.path)
        ? std::optional(Outcome{ Reason::DestinationIsSource })
        : std::nullopt;
}
