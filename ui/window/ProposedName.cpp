// SPDX-License-Identifier: MIT
#include "ui/window/ProposedName.h"

#include "support/FileSystem.h"
#include "support/Path.h"
#include "support/Text.h"

#include <QFileInfo>

QString proposedName(const QString &sourcePath, const QString &folder, const QString &ext)
{
    constexpr int longest = 25;
    const QString source = Path::lastPathComponent(sourcePath);
    QString name = Text::max(Path::stringByDeletingPathExtension(source), longest);
    const auto pathOf = [&](const QString &candidate) {
        return Path::stringByAppendingPathComponent(folder, candidate + u'.' + ext);
    };
    if (!FileIds{ sourcePath }.contains(pathOf(name)))
        return name;
    QString numbered;
    int number = 2;
    do {
        numbered = name + u' ' + QString::number(number++);
    } while (QFileInfo::exists(pathOf(numbered)));
    return numbered;
}
