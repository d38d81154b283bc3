// SPDX-License-Identifier: MIT
#include "cli/arguments/CommandLine.h"

#include "cli/arguments/EntryName.h"
#include "cli/report/ShownText.h"
#include "support/Configuration.h"
#include "support/Localized.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

UsageText usageError(const QString &message)
{
    const QString hint = localized(QT_TRANSLATE_NOOP3("Localizable",
        "Try 'video-converter-cli --help'.", "Command line: follows a message about wrong usage"));
    return { .code = ExitCode::Usage, .text = u"video-converter-cli: "_s + message + u'\n' + hint };
}

UsageText usageError(
    const LocalizedText &message, const std::vector<FormatArgument> &arguments = {})
{
    return usageError(formatted(message, arguments));
}

UsageText unknownEntry(const QString &name)
{
    const QStringList near = namesNear(name);
    if (!near.isEmpty())
        return usageError(QT_TRANSLATE_NOOP3("Localizable",
                              "There is no output named \"%@\"; did you mean \"%@\"?",
                              "Command line: wrong value of --to, and the nearest right ones"),
            { printable(name), near.join(u"\", \""_s) });
    return usageError(QT_TRANSLATE_NOOP3("Localizable",
                          "There is no output named \"%@\"; the command 'formats' lists them.",
                          "Command line: wrong value of --to"),
        { printable(name) });
}

std::optional<UsageText> wrongOptions(const QCommandLineParser &parser, const VerbRow &verb)
{
    for (const OptionRow &row : optionRows) {
        if (!parser.isSet(row.name))
            continue;
        if (!row.isTakenBy(verb.verb))
            return usageError(
                QT_TRANSLATE_NOOP3("Localizable", "'%@' does not take --%@.",
                    "Command line: a command and an option that does not belong to it"),
                { QString(verb.name), QString(row.name) });
        const QStringList values = parser.values(row.name);
        if (!row.value.isEmpty() && (values.size() > 1 || values.contains(QString())))
            return usageError(QT_TRANSLATE_NOOP3("Localizable", "--%@ needs one value.",
                                  "Command line: an option given twice or with an empty value"),
                { QString(row.name) });
    }
    return std::nullopt;
}

struct Check {
    bool isWrong;
    LocalizedText message;
};

std::optional<UsageText> wrongInputs(const CommandLine &line)
{
    const bool isConvert = line.verb == Verb::Convert;
    const auto count = line.inputs.size();
    const bool hasVideos = count > 0 || line.hasList();
    const bool areSeveral = count > 1 || line.hasList() || line.shard.parts > 1;
    const bool canPlan = !line.info.isEmpty() ? !hasVideos && line.folder.isEmpty()
        : line.folder.isEmpty()               ? count == 2 && !line.hasList()
                                              : hasVideos;
    // clang-format off
    const std::array checks{
        Check{ line.verb == Verb::Formats && count > 0,                     QT_TRANSLATE_NOOP3("Localizable", "'formats' takes no files.", "Command line: wrong usage") },
        Check{ line.verb == Verb::Probe && count == 0,                      QT_TRANSLATE_NOOP3("Localizable", "'probe' needs a file.", "Command line: wrong usage") },
        Check{ line.verb == Verb::Plan && !canPlan,                         QT_TRANSLATE_NOOP3("Localizable", "'plan' takes a video and an output file, videos and --folder, or --info alone.", "Command line: wrong usage") },
        Check{ isConvert && !hasVideos,                                     QT_TRANSLATE_NOOP3("Localizable", "There is no video to convert.", "Command line: wrong usage") },
        Check{ isConvert && line.output.isEmpty() == line.folder.isEmpty(), QT_TRANSLATE_NOOP3("Localizable", "'convert' needs either --output or --folder.", "Command line: wrong usage") },
        Check{ line.output == u"-",                                         QT_TRANSLATE_NOOP3("Localizable", "The result can't go to standard output; name a file.", "Command line: wrong usage") },
        Check{ isConvert && areSeveral && line.folder.isEmpty(),            QT_TRANSLATE_NOOP3("Localizable", "Several videos can't go to one output file; use --folder.", "Command line: wrong usage") },
        Check{ line.overwrite && line.skipExisting,                         QT_TRANSLATE_NOOP3("Localizable", "--overwrite and --skip-existing exclude each other.", "Command line: wrong usage") },
    };
    // clang-format on
    const auto *const found = std::ranges::find(checks, true, &Check::isWrong);
    if (found != checks.end())
        return usageError(found->message);
    if (isConvert && promisesOtherFormat(line.output, line.entries.front()))
        return usageError(QT_TRANSLATE_NOOP3("Localizable",
                              "\"%@\" is no name for \"%@\", which makes .%@ files.",
                              "Command line: name of a result, name of an output, its extension"),
            { printable(line.output), line.entries.front().destDevice,
                extensionOf(line.entries.front()) });
    return std::nullopt;
}

// Qt takes what begins with a colon for a path of its own.
QString pathOf(const QString &name) { return name.startsWith(u':') ? u"./"_s + name : name; }

CommandLine readLine(const QCommandLineParser &parser, Verb verb)
{
    const QString entry = parser.value(u"to"_s);
    return { .verb = verb,
        .json = parser.isSet(u"json"_s),
        .quiet = parser.isSet(u"quiet"_s),
        .verbose = parser.isSet(u"verbose"_s),
        .overwrite = parser.isSet(u"overwrite"_s),
        .skipExisting = parser.isSet(u"skip-existing"_s),
        .entries = verb == Verb::Plan && entry == "all"_L1 ? allEntries() : entryMeant(entry),
        .inputs = parser.positionalArguments().mid(1),
        .tree = pathOf(parser.value(u"recursive"_s)),
        .list = pathOf(parser.value(u"files-from"_s)),
        .listIsNullSeparated = parser.isSet(u"null"_s),
        .output = parser.value(u"output"_s),
        .folder = parser.value(u"folder"_s),
        .info = pathOf(parser.value(u"info"_s)) };
}

/// Reads the numbers of --jobs and --shard; false when they are none.
bool readNumbers(const QCommandLineParser &parser, CommandLine &line)
{
    static const QRegularExpression shard(uR"(\A(\d{1,6})/(\d{1,6})\z)"_s);
    bool isNumber = true;
    if (parser.isSet(u"jobs"_s))
        line.jobs = parser.value(u"jobs"_s).toInt(&isNumber);
    if (parser.isSet(u"shard"_s)) {
        const auto match = shard.match(parser.value(u"shard"_s));
        line.shard = { match.captured(1).toInt(), match.captured(2).toInt() };
    }
    return isNumber && line.jobs >= 0 && line.jobs <= 1000 && line.shard.part >= 1
        && line.shard.part <= line.shard.parts;
}

std::variant<CommandLine, UsageText> checkedLine(
    const QCommandLineParser &parser, const VerbRow &verb)
{
    if (const auto wrong = wrongOptions(parser, verb))
        return *wrong;
    CommandLine line = readLine(parser, verb.verb);
    if (!readNumbers(parser, line))
        return usageError(QT_TRANSLATE_NOOP3("Localizable",
            "--jobs takes a number, --shard two such as 2/8.", "Command line: wrong usage"));
    const bool takesEntry = line.verb == Verb::Plan || line.verb == Verb::Convert;
    if (takesEntry && !parser.isSet(u"to"_s))
        return usageError(QT_TRANSLATE_NOOP3(
            "Localizable", "--to NAME is missing.", "Command line: wrong usage"));
    if (takesEntry && line.entries.empty())
        return unknownEntry(parser.value(u"to"_s));
    if (const auto wrong = wrongInputs(line))
        return *wrong;
    return line;
}

}

std::variant<CommandLine, UsageText> parsedCommandLine(const QStringList &arguments)
{
    if (arguments.size() == 3 && arguments.at(1) == "--generate"_L1)
        return UsageText{ .text = generatedText(arguments.at(2)) };
    QCommandLineParser parser;
    for (const OptionRow &row : optionRows) {
        QStringList spellings{ row.name, row.letter };
        spellings.removeAll(QString());
        parser.addOption(QCommandLineOption(spellings, QString(), row.value));
    }
    const bool understood = parser.parse(arguments);
    const QString name = parser.positionalArguments().value(0);
    const auto *const verb = std::ranges::find(verbRows, name, &VerbRow::name);
    const bool isKnown = verb != verbRows.end();
    if (parser.isSet(u"help"_s))
        return UsageText{ .text = isKnown ? helpOn(*verb) : generalHelp() };
    if (parser.isSet(u"version"_s))
        return UsageText{ .text = u"video-converter-cli "_s + Configuration::version() };
    if (!understood)
        return usageError(printable(parser.errorText()));
    if (name.isEmpty())
        return UsageText{ .code = ExitCode::Usage, .text = generalHelp() };
    if (!isKnown)
        return usageError(QT_TRANSLATE_NOOP3("Localizable", "There is no command named \"%@\".",
                              "Command line: wrong usage"),
            { printable(name) });
    return checkedLine(parser, *verb);
}
