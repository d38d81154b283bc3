// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Inputs.h"
#include "cli/report/Output.h"
#include "engine/ConversionRun.h"
#include "engine/Destination.h"
#include "engine/Task.h"
#include "planning/ConversionDescriptor.h"
#include "support/Interruption.h"
#include "support/Path.h"
#include "support/StandardInput.h"
#include "support/Text.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr auto infoLimit = qint64{ 64 } * 1024 * 1024;

/// Media information as the tool prints it, or as 'probe --json' wraps it.
std::variant<JSON, Outcome> savedInfo(const QString &name)
{
    const auto bytes = StandardInput::contentsOf(name, infoLimit);
    if (!bytes)
        return Outcome{ Reason::InfoNotReadable };
    const JSON json = JSON::parse(*bytes);
    if (json.value().isNull())
        return Outcome{ Reason::InfoNoJson };
    const JSON inner = json[u"info"_s];
    return inner.value().isObject() ? inner : json;
}

/// Without an item only the arguments that depend on the video.
void print(const CommandLine &line, const ConversionItem *item, const JSON &info)
{
    QJsonObject object;
    for (const VideoConstraints &entry : line.entries) {
        QStringList words = item
            ? conversionArguments({ item->input.path, item->destPath, entry, info })
            : conversionDescriptor(entry.format).ffmpegArguments({}, {}, info, entry.dimension);
        object[entry.destDevice] = QJsonArray::fromStringList(words);
        if (line.json)
            continue;
        if (item)
            words.prepend(toolPath(Tool::Ffmpeg));
        if (line.entries.size() > 1)
            Output::line(u"# "_s + entry.destDevice);
        QString text = Text::shellQuoted(words);
        // What was found keeps its place in a tree, which may not be there yet.
        if (item && item->input.isFound)
            text.prepend(Text::shellQuoted({ u"mkdir"_s, u"-p"_s,
                             Path::stringByDeletingLastPathComponent(item->destPath) })
                + u" && "_s);
        // The tool would read the lines after its own, where many are pasted.
        if (!line.folder.isEmpty())
            text += u" </dev/null"_s;
        Output::line(text);
    }
    if (line.json)
        Output::json(QJsonDocument(object),
            line.folder.isEmpty() ? QJsonDocument::Indented : QJsonDocument::Compact);
}

ExitCode plan(const CommandLine &line, const ConversionItem &item, const FileIds &sources,
    Interruption &interruption)
{
    if (!item.input.refusal.isDone())
        return Output::failure(item.input.name, item.input.refusal);
    if (const auto refusal = sourceRefusal({ .path = item.destPath, .sources = sources }))
        return Output::failure(item.destPath, *refusal);
    // What lies beside the videos of a folder is left out silently.
    const VideoDescription video = examined(item.input.path, Cover::LeftOut, interruption);
    if (item.input.isFound && kindOf(video.refusal) == OutcomeKind::InputRefused)
        return ExitCode::Done;
    if (!video.refusal.isDone())
        return Output::failure(item.input.name, video.refusal);
    if (item.input.isFound && !isVideoOrMusic(video.info))
        return ExitCode::Done;
    print(line, &item, video.info);
    return ExitCode::Done;
}

/// Videos into a folder: a line, or an object in a line, for each and each output.
ExitCode planAll(const CommandLine &line, Interruption &interruption)
{
    const Inputs inputs = inputsOf(line);
    if (!inputs.refusal.isDone())
        return Output::failure(inputs.refusedName, inputs.refusal);
    FileIds sources;
    for (const Input &input : inputs.videos)
        sources.add(input.path);
    ExitCode code = ExitCode::Done;
    for (const VideoConstraints &entry : line.entries) {
        CommandLine one = line;
        one.entries = { entry };
        for (const ConversionItem &item : conversionItems(one, inputs.videos)) {
            const ExitCode end = plan(one, item, sources, interruption);
            code = code == ExitCode::Done ? end : code;
            if (Interruption::signal() != 0)
                return code;
        }
    }
    return code;
}

}

ExitCode planConversions(const CommandLine &line, Interruption &interruption)
{
    if (!line.folder.isEmpty())
        return planAll(line, interruption);
    if (line.info.isEmpty()) {
        const QString &name = line.inputs.front();
        return plan(line,
            { .input = { .name = name, .path = absolutePath(name) },
                .destPath = absolutePath(line.inputs.at(1)) },
            { absolutePath(name) }, interruption);
    }
    const auto saved = savedInfo(line.info);
    if (const auto *refusal = std::get_if<Outcome>(&saved))
        return Output::failure(line.info, *refusal);
    print(line, nullptr, std::get<JSON>(saved));
    return ExitCode::Done;
}
