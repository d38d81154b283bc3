// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ConversionItem.h"
#include "cli/Examination.h"
#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "engine/ConversionRun.h"
#include "engine/Destination.h"
#include "engine/Tool.h"
#include "planning/ConversionDescriptor.h"
#include "support/StandardInput.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr auto infoLimit = qint64{ 64 } * 1024 * 1024;

/// Media information as the tool prints it, or as 'probe --json' wraps it.
std::variant<JSON, Outcome> savedInfo(const QString &name)
{
    QFile file(name);
    QByteArray bytes;
    if (name == "-"_L1 || name == "/dev/stdin"_L1)
        bytes = StandardInput::readAll(infoLimit);
    else if (file.open(QIODevice::ReadOnly))
        bytes = file.read(infoLimit);
    else
        return Outcome{ Reason::InfoNotReadable };
    const JSON json = JSON::parse(bytes);
    if (json.value().isNull())
        return Outcome{ Reason::InfoNoJson };
    const JSON inner = json[u"info"_s];
    return inner.value().isObject() ? inner : json;
}

QStringList builtArguments(const VideoConstraints &entry, const JSON &info)
{
    return conversionDescriptor(entry.format)
        .ffmpegArguments(QString(), QString(), info, entry.dimension);
}

QStringList plannedArguments(
    const CommandLine &line, const VideoConstraints &entry, const JSON &info)
{
    if (!line.info.isEmpty())
        return builtArguments(entry, info);
    return conversionArguments({ .path = absolutePath(line.inputs.at(0)),
        .destPath = absolutePath(line.inputs.at(1)),
        .constraints = entry,
        .conversionInfo = info });
}

QString shellLine(const CommandLine &line, const QStringList &arguments)
{
    return line.info.isEmpty() ? shellQuoted(QStringList{ toolPath(Tool::Ffmpeg) } + arguments)
                               : shellQuoted(arguments);
}

void print(const CommandLine &line, const JSON &info)
{
    QJsonObject object;
    for (const VideoConstraints &entry : line.entries) {
        const QStringList arguments = plannedArguments(line, entry, info);
        object[entry.destDevice] = QJsonArray::fromStringList(arguments);
        if (line.json)
            continue;
        if (line.entries.size() > 1)
            Output::line(u"# "_s + entry.destDevice);
        Output::line(shellLine(line, arguments));
    }
    if (line.json)
        Output::json(QJsonDocument(object), QJsonDocument::Indented);
}

}

ExitCode planConversions(const CommandLine &line, Interruption &interruption)
{
    if (!line.info.isEmpty()) {
        const auto saved = savedInfo(line.info);
        if (const auto *refusal = std::get_if<Outcome>(&saved))
            return Output::failure(line.info, *refusal);
        print(line, std::get<JSON>(saved));
        return ExitCode::Done;
    }
    const QString path = absolutePath(line.inputs.at(0));
    const QString destPath = absolutePath(line.inputs.at(1));
    if (const auto refusal = sourceRefusal({ .path = destPath, .sources = { path } }))
        return Output::failure(line.inputs.at(1), *refusal);
    const auto result = examined(path, Cover::LeftOut, interruption);
    if (const auto *refusal = std::get_if<Outcome>(&result))
        return Output::failure(line.inputs.first(), *refusal);
    print(line, std::get<VideoDescription>(result).info);
    return ExitCode::Done;
}
