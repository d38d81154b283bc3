// SPDX-License-Identifier: MIT
#include "engine/Obstacle.h"

#include "support/FileSystem.h"
#include "support/Localized.h"

#include <QFileInfo>

std::optional<QString> obstacleAt(const QString &destPath)
{
    const QFileInfo file(destPath);
    if (file.isDir() || destPath.endsWith(u'/'))
        return localized(
            QT_TRANSLATE_NOOP3("Localizable", "The destination is a folder, not a file.",
                "Why a conversion's result can't be written"));
    if (file.isSymbolicLink() && !file.exists())
        return localized(
            QT_TRANSLATE_NOOP3("Localizable", "The destination is a link that leads nowhere.",
                "Why a conversion's result can't be written"));
    if (file.exists() && !isRegularFile(destPath))
        return localized(
            QT_TRANSLATE_NOOP3("Localizable", "The destination is a pipe or a device, not a file.",
                "Why a conversion's result can't be written"));
    return std::nullopt;
}
