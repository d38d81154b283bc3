// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Destination.h"
#include "cli/Examination.h"
#include "cli/Output.h"
#include "cli/ShownText.h"
#include "engine/ConversionRun.h"
#include "planning/ConversionDescriptor.h"
#include "support/Bundle.h"
#include "support/Localized.h"
#include "support/StandardInput.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr auto infoLimit = qint64{ 64 } * 1024 * 1024;

/// A media information as the tool prints it, or inside what 'probe --json' prints.
std::variant<JSON, Failure> savedInfo(const QString &name)
{
    QFile file(name);
    QByteArray bytes;
    if (name == "-"_L1 || name == "/dev/stdin"_L1)
        bytes = StandardInput::readAll(infoLimit);
    else if (file.open(QIODevice::ReadOnly))
        bytes = file.read(infoLimit);
    else
        return Failure{ ExitCode::InputRefused,
            localized(QT_TRANSLATE_NOOP3("Localizable", "The file can't be opened.",
                "Why a saved description of a video can't be used")) };
    const JSON json = JSON::parse(bytes);
    if (json.value().isNull())
        return Failure{ ExitCode::InputRefused,
            localized(QT_TRANSLATE_NOOP3("Localizable", "The file holds no JSON.",
                "Why a saved description of a video can't be used")) };
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
    const QString tool = Bundle::main().bundlePath() + u"/Contents/ffmpeg/ffmpeg"_s;
    return line.info.isEmpty() ? shellQuoted(QStringList{ tool } + arguments)
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
        if (const auto *failure = std::get_if<Failure>(&saved))
            return Output::failure(line.info, *failure);
        print(line, std::get<JSON>(saved));
        return ExitCode::Done;
    }
    const QString path = absolutePath(line.inputs.at(0));
    if (const auto refusal = sourceRefusal(
            absolutePath(line.inputs.at(1)), { { .input = {}, .path = path, .destPath = {} } }))
        return Output::failure(line.inputs.at(1), *refusal);
    const auto result = examined(path, Cover::LeftOut, interruption);
    if (const auto *failure = std::get_if<Failure>(&result))
        return Output::failure(line.inputs.first(), *failure);
    print(line, std::get<VideoDescription>(result).info);
    return ExitCode::Done;
}
