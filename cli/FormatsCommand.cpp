// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/arguments/EntryName.h"
#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "support/Localized.h"

#include <QJsonArray>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Group {
    MenuGroup group;
    QLatin1StringView id;
    LocalizedText heading;
};

constexpr std::array groups{
    Group{ MenuGroup::Devices, "devices"_L1,
        QT_TRANSLATE_NOOP3("Localizable", "Devices", "Heading of a group of outputs") },
    Group{ MenuGroup::Formats, "formats"_L1,
        QT_TRANSLATE_NOOP3("Localizable", "Formats", "Heading of a group of outputs") },
    Group{ MenuGroup::Mp4Quality, "mp4"_L1,
        QT_TRANSLATE_NOOP3("Localizable", "MP4 quality", "Heading of a group of outputs") },
};

std::optional<qint64> longestSide(const VideoConstraints &entry)
{
    const auto &maximum = entry.dimension.maximum();
    return maximum ? std::optional(std::max(maximum->width, maximum->height)) : std::nullopt;
}

QString plainLine(const VideoConstraints &entry)
{
    QString text = u"  "_s + leftJustified(entry.destDevice, 36) + extensionOf(entry);
    if (const auto side = longestSide(entry))
        text = leftJustified(text, 44) + u"<= %1 px"_s.arg(*side, 4);
    return text;
}

QJsonObject jsonEntry(const VideoConstraints &entry, QLatin1StringView group)
{
    const auto side = longestSide(entry);
    return { { u"name"_s, entry.destDevice }, { u"group"_s, group },
        { u"extension"_s, extensionOf(entry) },
        { u"maximum"_s, side ? QJsonValue(*side) : QJsonValue() } };
}

}

ExitCode listFormats(const CommandLine &line, Interruption & /*interruption*/)
{
    QJsonArray list;
    for (const Group &group : groups) {
        if (!line.json)
            Output::line(localized(group.heading));
        for (const VideoConstraints &entry : allEntries(group.group)) {
            if (line.json)
                list << jsonEntry(entry, group.id);
            else
                Output::line(plainLine(entry));
        }
    }
    if (line.json)
        Output::json(QJsonDocument(list), QJsonDocument::Indented);
    return ExitCode::Done;
}
