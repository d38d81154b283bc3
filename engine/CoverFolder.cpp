// SPDX-License-Identifier: MIT
#include "engine/CoverFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUuid>

#include <cerrno>
#include <csignal>
#include <memory>
#include <mutex>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

std::mutex folderMutex;

std::unique_ptr<QTemporaryDir> &folder()
{
    static std::unique_ptr<QTemporaryDir> directory;
    return directory;
}

// A killed process could not remove its folder.
void removeAbandonedFolders()
{
    static const QRegularExpression ours(u"^video-converter-(\\d+)-\\w+$"_s);
    const QDir temporary(QDir::tempPath());
    for (const QFileInfo &each : temporary.entryInfoList(QDir::Dirs | QDir::NoSymLinks)) {
        const QRegularExpressionMatch match = ours.match(each.fileName());
        if (match.hasMatch() && each.ownerId() == ::getuid()
            && ::kill(match.captured(1).toInt(), 0) != 0 && errno == ESRCH)
            QDir(each.filePath()).removeRecursively();
    }
}

std::unique_ptr<QTemporaryDir> newFolder()
{
    removeAbandonedFolders();
    return std::make_unique<QTemporaryDir>(
        QDir::tempPath() + u"/video-converter-%1-XXXXXX"_s.arg(::getpid()));
}

}

namespace CoverFolder {

QString uniqueImagePath()
{
    const std::lock_guard lock(folderMutex);
    // Some systems sweep their shared temporary folder: create ours again.
    if (!folder() || !QFileInfo::exists(folder()->path()))
        folder() = newFolder();
    if (!folder()->isValid())
        return {};
    return folder()->path() + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces) + u".jpg"_s;
}

void remove()
{
    const std::lock_guard lock(folderMutex);
    folder().reset();
}

}
