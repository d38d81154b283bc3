// SPDX-License-Identifier: MIT
#include "cli/arguments/CommandLine.h"

#include "cli/arguments/Help.h"
#include "cli/report/ShownText.h"
#include "support/Configuration.h"
#include "support/Format.h"
#include "support/Localized.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array verbNames{ "formats"_L1, "probe"_L1, "plan"_L1, "convert"_L1 };

std::optional<Verb> verbNamed(const QString &name)
{
    const auto *const found = std::find(verbNames.begin(), verbNames.end(), name);
    return found == verbNames.end() ? std::nullopt
                                    : std::optional(static_cast<Verb>(found - verbNames.begin()));
}

enum class Option { Help, Version, Verbose, Json, To, Overwrite, Output, Folder, Info };

struct OptionRow {
    Option option;
    QLatin1StringView name;
    QLatin1StringView letter;
    bool hasValue;
    std::array<bool, 4> takenBy;
};

// clang-format off
constexpr std::array optionRows {
    //                                                               formats probe plan   convert
    OptionRow { Option::Help,      "help"_L1,      "h"_L1, false, { true,  true,  true,  true  } },
    OptionRow { Option::Version,   "version"_L1,   {},     false, { true,  true,  true,  true  } },
    OptionRow { Option::Verbose,   "verbose"_L1,   {},     false, { true,  true,  true,  true  } },
    OptionRow { Option::Json,      "json"_L1,      {},     false, { true,  true,  true,  true  } },
    OptionRow { Option::To,        "to"_L1,        {},     true,  { false, false, true,  true  } },
    OptionRow { Option::Overwrite, "overwrite"_L1, {},     false, { false, false, false, true  } },
    OptionRow { Option::Output,    "output"_L1,    "o"_L1, true,  { false, false, false, true  } },
    OptionRow { Option::Folder,    "folder"_L1,    "d"_L1, true,  { false, false, false, true  } },
    OptionRow { Option::Info,      "info"_L1,      {},     true,  { false, false, true,  false } },
};
// clang-format on

QString nameOf(Option option) { return optionRows.at(static_cast<std::size_t>(option)).name; }

bool isSet(const QCommandLineParser &parser, Option option) { return parser.isSet(nameOf(option)); }

void addOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row : optionRows) {
        QStringList spellings{ row.name };
        if (!row.letter.isEmpty())
            spellings << row.letter;
        parser.addOption(
            QCommandLineOption(spellings, QString(), row.hasValue ? QString(row.name) : QString()));
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
    std::vector<VideoConstraints> entries;
    const QStringList names
        = verb == Verb::Plan && name == "all"_L1 ? entryNames() : QStringList{ name };
    for (const QString &each : names) {
        if (auto entry
            = videoConstraints(each, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s))
            entries.push_back(*std::move(entry));
    }
    return entries;
}

UsageText unknownEntry(const QString &name)
{
    for (const QString &entry : entryNames()) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return usageError(
                formatted(QT_TRANSLATE_NOOP3("Localizable",
                              "There is no output named \"%@\"; did you mean \"%@\"?",
                              "Command line: wrong value of --to, and the nearest right one"),
                    { printable(name), entry }));
    }
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
        if (!row.takenBy.at(verbIndex))
            return usageError(
                formatted(QT_TRANSLATE_NOOP3("Localizable", "'%@' does not take --%@.",
                              "Command line: a command and an option that does not belong to it"),
                    { QString(verbNames.at(verbIndex)), QString(row.name) }));
        const QStringList values = parser.values(row.name);
        if (row.hasValue && (values.size() > 1 || values.contains(QString())))
            return usageError(
                formatted(QT_TRANSLATE_NOOP3("Localizable", "--%@ needs one value.",
                              "Command line: an option given twice or with an empty value"),
                    { QString(row.name) }));
    }
    return std::nullopt;
}

QString wrongInputs(const CommandLine &line)
{
    const auto count = line.inputs.size();
    if (line.verb == Verb::Formats && count > 0)
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "'formats' takes no files.", "Command line: wrong usage"));
    if (line.verb == Verb::Probe && count != 1)
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "'probe' takes exactly one file.", "Command line: wrong usage"));
    if (line.verb == Verb::Plan && count != (line.info.isEmpty() ? 2 : 0))
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "'plan' takes either a video and an output file, or --info alone.",
            "Command line: wrong usage"));
    if (line.verb != Verb::Convert)
        return {};
    if (count == 0)
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "There is no video to convert.", "Command line: wrong usage"));
    if (line.output.isEmpty() == line.folder.isEmpty())
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "'convert' needs either --output or --folder.", "Command line: wrong usage"));
    if (line.output == u"-")
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "The result can't go to standard output; name a file.", "Command line: wrong usage"));
    if (count > 1 && line.folder.isEmpty())
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "Several videos can't go to one output file; use --folder.",
            "Command line: wrong usage"));
    return {};
}

bool takesEntry(Verb verb) { return verb == Verb::Plan || verb == Verb::Convert; }

CommandLine readLine(const QCommandLineParser &parser, Verb verb)
{
    return { .verb = verb,
        .json = isSet(parser, Option::Json),
        .overwrite = isSet(parser, Option::Overwrite),
        .verbose = isSet(parser, Option::Verbose),
        .entries = entriesNamed(parser.value(nameOf(Option::To)), verb),
        .inputs = parser.positionalArguments().mid(1),
        .output = parser.value(nameOf(Option::Output)),
        .folder = parser.value(nameOf(Option::Folder)),
        .info = parser.value(nameOf(Option::Info)) };
}

std::variant<CommandLine, UsageText> checkedLine(const QCommandLineParser &parser, Verb verb)
{
    if (const auto wrong = wrongOptions(parser, verb))
        return *wrong;
    CommandLine line = readLine(parser, verb);
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
