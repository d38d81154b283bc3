// SPDX-License-Identifier: MIT
#include "engine/CoverFolder.h"

#include <QDir>
#include <QTemporaryDir>
#include <QUuid>

#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

std::mutex folderMutex;

std::unique_ptr<QTemporaryDir> &folder()
{
    static std::unique_ptr<QTemporaryDir> directory;
    return directory;
}

}

namespace CoverFolder {

QString uniqueImagePath()
{
    const std::lock_guard lock(folderMutex);
    if (!folder())
        folder() = std::make_unique<QTemporaryDir>(QDir::tempPath() + u"/video-converter-XXXXXX"_s);
    return folder()->path() + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces) + u".jpg"_s;
}

void remove()
{
    const std::lock_guard lock(folderMutex);
    folder().reset();
}

}
