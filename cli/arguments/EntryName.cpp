// SPDX-License-Identifier: MIT
#include "cli/arguments/EntryName.h"

#include "planning/ConversionDescriptor.h"
#include "support/Path.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

QString extensionOf(const VideoConstraints &entry)
{
    return conversionDescriptor(entry.format).ext;
}

std::vector<VideoConstraints> allEntries(std::optional<MenuGroup> group)
{
    std::vector<VideoConstraints> entries;
    for (const QString &name : entryNames(group))
        entries.push_back(
            *videoConstraints(name, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s));
    return entries;
}

std::vector<VideoConstraints> entryMeant(const QString &text)
{
    const auto isMeant
        = [&](const QString &name) { return name.compare(text, Qt::CaseInsensitive) == 0; };
    for (const VideoConstraints &entry : allEntries()) {
        if (isMeant(entry.destDevice))
            return { entry };
    }
    for (const VideoConstraints &entry : allEntries(MenuGroup::Formats)) {
        if (isMeant(extensionOf(entry)))
            return { entry };
    }
    return {};
}

QStringList namesNear(const QString &text)
{
    const QStringList names = entryNames();
    // The whole text, then any word of it, then how it begins.
    const QStringList words = QString(text).replace(u'_', u' ').replace(u'-', u' ').split(u' ');
    for (const QString &part : QStringList{ text } + words + QStringList{ text.left(3) }) {
        QStringList near = names.filter(part, Qt::CaseInsensitive);
        if (part.size() > 1 && !near.isEmpty() && near.size() < 12)
            return near;
    }
    const QString start = QRegularExpression::escape(text.left(2));
    return text.size() < 2
        ? QStringList()
        : names.filter(QRegularExpression(u'^' + start, QRegularExpression::CaseInsensitiveOption));
}

bool promisesOtherFormat(const QString &path, const VideoConstraints &entry)
{
    const QString extension = Path::pathExtension(path).toLower();
    const auto entries = allEntries();
    return extension != extensionOf(entry)
        && std::ranges::find(entries, extension, extensionOf) != entries.end();
}
