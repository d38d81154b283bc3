// SPDX-License-Identifier: MIT
#include "cli/arguments/EntryName.h"

#include "planning/ConversionDescriptor.h"
#include "support/Path.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString extensionOf(const VideoConstraints &entry)
{
    return conversionDescriptor(entry.format).ext;
}

}

std::vector<VideoConstraints> allEntries()
{
    std::vector<VideoConstraints> entries;
    for (const QString &name : entryNames())
        entries.push_back(
            *videoConstraints(name, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s));
    return entries;
}

std::optional<VideoConstraints> entryMeant(const QString &text)
{
    const auto entries = allEntries();
    const QStringList plainFormats = entryNames(MenuGroup::Formats);
    const auto isNamed = [&](const VideoConstraints &entry) {
        return entry.destDevice.compare(text, Qt::CaseInsensitive) == 0;
    };
    const auto hasExtension = [&](const VideoConstraints &entry) {
        return plainFormats.contains(entry.destDevice)
            && extensionOf(entry).compare(text, Qt::CaseInsensitive) == 0;
    };
    auto found = std::ranges::find_if(entries, isNamed);
    if (found == entries.end())
        found = std::ranges::find_if(entries, hasExtension);
    return found == entries.end() ? std::nullopt : std::optional(*found);
}

QStringList namesNear(const QString &text)
{
    // The whole text, then any word of it, then how it begins.
    const QStringList words = QString(text).replace(u'_', u' ').replace(u'-', u' ').split(u' ');
    for (const QString &part : QStringList{ text } + words + QStringList{ text.left(3) }) {
        QStringList near = entryNames().filter(part, Qt::CaseInsensitive);
        if (part.size() > 1 && !near.isEmpty() && near.size() < 12)
            return near;
    }
    QStringList near = entryNames();
    near.removeIf([&](const QString &name) {
        return text.size() < 2 || !name.startsWith(text.first(2), Qt::CaseInsensitive);
    });
    return near;
}

bool promisesOtherFormat(const QString &path, const VideoConstraints &entry)
{
    const QString extension = Path::pathExtension(path).toLower();
    const auto entries = allEntries();
    return extension != extensionOf(entry)
        && std::ranges::find(entries, extension, extensionOf) != entries.end();
}
