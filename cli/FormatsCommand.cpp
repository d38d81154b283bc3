// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "planning/ConversionDescriptor.h"
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

VideoConstraints entryNamed(const QString &name)
{
    return *videoConstraints(name, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s);
}

qint64 longestSide(const VideoDimensionsConstraints &dimension)
{
    return std::max(dimension.maximum()->width, dimension.maximum()->height);
}

QString plainLine(const QString &name)
{
    const VideoConstraints entry = entryNamed(name);
    QString text = u"  "_s + leftJustified(name, 36) + conversionDescriptor(entry.format).ext;
    if (entry.dimension.maximum())
        text = leftJustified(text, 44) + u"<= "_s
            + QString::number(longestSide(entry.dimension)).rightJustified(4) + u" px"_s;
    return text;
}

QJsonObject jsonEntry(const QString &name, QLatin1StringView group)
{
    const VideoConstraints entry = entryNamed(name);
    QJsonObject object{ { u"name"_s, name }, { u"group"_s, group },
        { u"extension"_s, conversionDescriptor(entry.format).ext },
        { u"maximum"_s, QJsonValue::Null } };
    if (entry.dimension.maximum())
        object[u"maximum"_s] = longestSide(entry.dimension);
    return object;
}

}

ExitCode listFormats(const CommandLine &line)
{
    QJsonArray list;
    for (const Group &group : groups) {
        if (!line.json)
            Output::line(localized(group.heading));
        for (const QString &name : entryNames(group.group)) {
            if (line.json)
                list << jsonEntry(name, group.id);
            else
                Output::line(plainLine(name));
        }
    }
    if (line.json)
        Output::json(QJsonDocument(list), QJsonDocument::Indented);
    return ExitCode::Done;
}
