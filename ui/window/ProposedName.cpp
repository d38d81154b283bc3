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
    const QString base = Text::max(Path::stringByDeletingPathExtension(source), longest);
    QString name = base;
    const auto pathOf = [&](const QString &candidate) {
        return Path::stringByAppendingPathComponent(folder, candidate + u'.' + ext);
    };
    if (FileIds{ sourcePath }.contains(pathOf(base))) {
        for (int number = 2; QFileInfo::exists(pathOf(name)); ++number)
            name = base + u' ' + QString::number(number);
    }
    return name;
}
