// SPDX-License-Identifier: MIT
#include "cli/arguments/CommandLine.h"

#include "cli/arguments/EntryName.h"
#include "cli/arguments/Generated.h"
#include "cli/arguments/Help.h"
#include "cli/report/ShownText.h"
#include "planning/ConversionDescriptor.h"
#include "support/Configuration.h"
#include "support/Format.h"
#include "support/Localized.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<Verb> verbNamed(const QString &name)
{
    const auto *const found = std::find(verbNames.begin(), verbNames.end(), name);
    return found == verbNames.end() ? std::nullopt
                                    : std::optional(static_cast<Verb>(found - verbNames.begin()));
}

QString nameOf(Option option) { return optionRows.at(static_cast<std::size_t>(option)).name; }

bool isSet(const QCommandLineParser &parser, Option option) { return parser.isSet(nameOf(option)); }

void addOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row : optionRows) {
        QStringList spellings{ row.name };
        if (!row.letter.isEmpty())
            spellings << row.letter;
        parser.addOption(QCommandLineOption(spellings, QString(), QString(row.value)));
    }
}

UsageText usageError(const QString &message)
{
    const QString hint = localized(QT_TRANSLATE_NOOP3("Localizable",
        "Try 'video-converter-cli --help'.", "Command line: follows a message about wrong usage"));
    return { .code = ExitCode::Usage, .text = u"video-converter-cli: "_s + message + u'\n' + hint };
}

std::vector<VideoConstraints> entriesNamed(const QString &name, Verb verb)
{
    if (verb == Verb::Plan && name == "all"_L1)
        return allEntries();
    const auto entry = entryMeant(name);
    return entry ? std::vector{ *entry } : std::vector<VideoConstraints>();
}

UsageText unknownEntry(const QString &name)
{
    const QStringList near = namesNear(name);
    if (!near.isEmpty())
        return usageError(
            formatted(QT_TRANSLATE_NOOP3("Localizable",
                          "There is no output named \"%@\"; did you mean \"%@\"?",
                          "Command line: wrong value of --to, and the nearest right ones"),
                { printable(name), near.join(u"\", \""_s) }));
    return usageError(
        formatted(QT_TRANSLATE_NOOP3("Localizable",
                      "There is no output named \"%@\"; the command 'formats' lists them.",
                      "Command line: wrong value of --to"),
            { printable(name) }));
}

std::optional<UsageText> wrongOptions(const QCommandLineParser &parser, Verb verb)
{
    const auto verbIndex = static_cast<std::size_t>(verb);
    for (const OptionRow &row : optionRows) {
        if (!isSet(parser, row.option))
            continue;
        if (!row.isTakenBy(verb))
            return usageError(
                formatted(QT_TRANSLATE_NOOP3("Localizable", "'%@' does not take --%@.",
                              "Command line: a command and an option that does not belong to it"),
                    { QString(verbNames.at(verbIndex)), QString(row.name) }));
        const QStringList values = parser.values(row.name);
        if (!row.value.isEmpty() && (values.size() > 1 || values.contains(QString())))
            return usageError(
                formatted(QT_TRANSLATE_NOOP3("Localizable", "--%@ needs one value.",
                              "Command line: an option given twice or with an empty value"),
                    { QString(row.name) }));
    }
    return std::nullopt;
}

QString wrongPlanInputs(const CommandLine &line)
{
    const auto count = line.inputs.size();
    const bool hasVideos = count > 0 || line.hasList();
    const bool isRight = !line.info.isEmpty() ? !hasVideos && line.folder.isEmpty()
        : line.folder.isEmpty()               ? count == 2 && !line.hasList()
                                              : hasVideos;
    if (isRight)
        return {};
    return localized(QT_TRANSLATE_NOOP3("Localizable",
        "'plan' takes a video and an output file, videos and --folder, or --info alone.",
        "Command line: wrong usage"));
}

QString wrongConvertInputs(const CommandLine &line)
{
    if (line.inputs.isEmpty() && !line.hasList())
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "There is no video to convert.", "Command line: wrong usage"));
    if (line.output.isEmpty() == line.folder.isEmpty())
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "'convert' needs either --output or --folder.", "Command line: wrong usage"));
    if (line.output == u"-")
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "The result can't go to standard output; name a file.", "Command line: wrong usage"));
    if ((line.inputs.size() > 1 || line.hasList()) && line.folder.isEmpty())
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "Several videos can't go to one output file; use --folder.",
            "Command line: wrong usage"));
    if (line.overwrite && line.skipExisting)
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "--overwrite and --skip-existing exclude each other.", "Command line: wrong usage"));
    if (promisesOtherFormat(line.output, line.entries.front()))
        return formatted(QT_TRANSLATE_NOOP3("Localizable",
                             "\"%@\" is no name for \"%@\", which makes .%@ files.",
                             "Command line: name of a result, name of an output, its extension"),
            { printable(line.output), line.entries.front().destDevice,
                conversionDescriptor(line.entries.front().format).ext });
    return {};
}

QString wrongInputs(const CommandLine &line)
{
    if (line.verb == Verb::Formats && !line.inputs.isEmpty())
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "'formats' takes no files.", "Command line: wrong usage"));
    if (line.verb == Verb::Probe && line.inputs.isEmpty())
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "'probe' needs a file.", "Command line: wrong usage"));
    if (line.verb == Verb::Plan)
        return wrongPlanInputs(line);
    return line.verb == Verb::Convert ? wrongConvertInputs(line) : QString();
}

bool takesEntry(Verb verb) { return verb == Verb::Plan || verb == Verb::Convert; }

CommandLine readLine(const QCommandLineParser &parser, Verb verb)
{
    return { .verb = verb,
        .json = isSet(parser, Option::Json),
        .quiet = isSet(parser, Option::Quiet),
        .verbose = isSet(parser, Option::Verbose),
        .overwrite = isSet(parser, Option::Overwrite),
        .skipExisting = isSet(parser, Option::SkipExisting),
        .entries = entriesNamed(parser.value(nameOf(Option::To)), verb),
        .inputs = parser.positionalArguments().mid(1),
        .tree = parser.value(nameOf(Option::Recursive)),
        .list = parser.value(nameOf(Option::FilesFrom)),
        .listIsNullSeparated = isSet(parser, Option::Null),
        .output = parser.value(nameOf(Option::Output)),
        .folder = parser.value(nameOf(Option::Folder)),
        .info = parser.value(nameOf(Option::Info)) };
}

/// Reads the numbers of --jobs and --shard; false when they are none.
bool readNumbers(const QCommandLineParser &parser, CommandLine &line)
{
    static const QRegularExpression shard(uR"(\A(\d{1,6})/(\d{1,6})\z)"_s);
    if (isSet(parser, Option::Jobs)) {
        bool isNumber = false;
        line.jobs = parser.value(nameOf(Option::Jobs)).toInt(&isNumber);
        if (!isNumber || line.jobs < 0 || line.jobs > 1000)
            return false;
    }
    if (isSet(parser, Option::Shard)) {
        const auto match = shard.match(parser.value(nameOf(Option::Shard)));
        line.shard = { match.captured(1).toInt(), match.captured(2).toInt() };
        return line.shard.part >= 1 && line.shard.part <= line.shard.parts;
    }
    return true;
}

std::variant<CommandLine, UsageText> checkedLine(const QCommandLineParser &parser, Verb verb)
{
    if (const auto wrong = wrongOptions(parser, verb))
        return *wrong;
    CommandLine line = readLine(parser, verb);
    if (!readNumbers(parser, line))
        return usageError(localized(QT_TRANSLATE_NOOP3("Localizable",
            "--jobs takes a number, --shard two such as 2/8.", "Command line: wrong usage")));
    if (takesEntry(verb) && !isSet(parser, Option::To))
        return usageError(localized(QT_TRANSLATE_NOOP3(
            "Localizable", "--to NAME is missing.", "Command line: wrong usage")));
    if (takesEntry(verb) && line.entries.empty())
        return unknownEntry(parser.value(nameOf(Option::To)));
    if (const QString wrong = wrongInputs(line); !wrong.isEmpty())
        return usageError(wrong);
    return line;
}

}

std::variant<CommandLine, UsageText> parsedCommandLine(const QStringList &arguments)
{
    if (arguments.size() == 3 && arguments.at(1) == "--generate"_L1)
        return UsageText{ .text = Generated::named(arguments.at(2)) };
    QCommandLineParser parser;
    addOptions(parser);
    const bool understood = parser.parse(arguments);
    const QString name = parser.positionalArguments().value(0);
    const std::optional<Verb> verb = verbNamed(name);
    if (isSet(parser, Option::Help))
        return UsageText{ .text = verb ? Help::of(*verb) : Help::general() };
    if (isSet(parser, Option::Version))
        return UsageText{ .text = u"video-converter-cli "_s + Configuration::version() };
    if (!understood)
        return usageError(printable(parser.errorText()));
    if (name.isEmpty())
        return UsageText{ .code = ExitCode::Usage, .text = Help::general() };
    if (!verb)
        return usageError(
            formatted(QT_TRANSLATE_NOOP3("Localizable", "There is no command named \"%@\".",
                          "Command line: wrong usage"),
                { printable(name) }));
    return checkedLine(parser, *verb);
}
