// SPDX-License-Identifier: MIT
#pragma once

#include "support/Localized.h"

#include <QLatin1StringView>

#include <array>
#include <optional>

/// In the order in which help lists them; options are taken by one, or by some in a row.
enum class Verb { Formats, Probe, Plan, Convert };

struct VerbRow {
    Verb verb;
    QLatin1StringView name;
    /// What stands after the program's name; lines of one usage each.
    QLatin1StringView usage;
    LocalizedText text;
};

// clang-format off
inline constexpr std::array verbRows{
    VerbRow{ Verb::Formats, QLatin1StringView("formats"), QLatin1StringView("formats [--json]"), QT_TRANSLATE_NOOP3("Localizable", "Lists the outputs that --to takes: devices, formats and MP4 qualities.", "Help: command formats") },
    VerbRow{ Verb::Probe, QLatin1StringView("probe"), QLatin1StringView("probe FILE... [--json]"), QT_TRANSLATE_NOOP3("Localizable", "Describes videos. With --json: everything that the tool reports (info), the length (duration, seconds) and the size of the cover picture or null (cover).", "Help: command probe") },
    VerbRow{ Verb::Plan, QLatin1StringView("plan"), QLatin1StringView("plan --to NAME (FILE OUT | FILE... -d FOLDER | --info JSONFILE) [--json]\nplan --to NAME (-r FOLDER | --files-from FILE) -d FOLDER [--json]"), QT_TRANSLATE_NOOP3("Localizable", "Prints the tool's command line, quoted for a shell, without running it. --to all prints one for each output.", "Help: command plan") },
    VerbRow{ Verb::Convert, QLatin1StringView("convert"), QLatin1StringView("convert --to NAME (FILE -o OUT | FILE... -d FOLDER) [OPTIONS]\nconvert --to NAME (-r FOLDER | --files-from FILE) -d FOLDER [OPTIONS]"), QT_TRANSLATE_NOOP3("Localizable", "Converts videos. Ctrl-C cancels and leaves no unfinished file. A name that begins with a dash goes after --.", "Help: command convert") },
};
// clang-format on

/// What may stand after an option; completion offers such words.
enum class ValueKind { None, Entry, File, Folder, Text };

/// One option of the command. Parser, help, manual page and completions come from these rows.
struct OptionRow {
    QLatin1StringView name;
    QLatin1StringView letter;
    QLatin1StringView value;
    ValueKind kind;
    Verb first;
    Verb last;
    LocalizedText text;

    [[nodiscard]] bool isTakenBy(Verb verb) const { return first <= verb && verb <= last; }
};

// clang-format off
inline constexpr std::array optionRows {
    OptionRow { QLatin1StringView("to"),            {},                     QLatin1StringView("NAME"),     ValueKind::Entry,  Verb::Plan,    Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "the output: one of those that 'formats' lists, or an extension", "Help: option --to") },
    OptionRow { QLatin1StringView("output"),        QLatin1StringView("o"), QLatin1StringView("OUT"),      ValueKind::File,   Verb::Convert, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "the file to write", "Help: option --output") },
    OptionRow { QLatin1StringView("folder"),        QLatin1StringView("d"), QLatin1StringView("FOLDER"),   ValueKind::Folder, Verb::Plan,    Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "the folder to write to; the files get the videos' names", "Help: option --folder") },
    OptionRow { QLatin1StringView("recursive"),     QLatin1StringView("r"), QLatin1StringView("FOLDER"),   ValueKind::Folder, Verb::Plan,    Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "takes all videos and music in a folder and below, and keeps its tree", "Help: option --recursive") },
    OptionRow { QLatin1StringView("files-from"),    {},                     QLatin1StringView("FILE"),     ValueKind::File,   Verb::Plan,    Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "takes the names in a file, one a line; - is standard input", "Help: option --files-from") },
    OptionRow { QLatin1StringView("null"),          QLatin1StringView("0"), {},                            ValueKind::None,   Verb::Plan,    Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "names in that file end with a null character, as after find -print0", "Help: option --null") },
    OptionRow { QLatin1StringView("jobs"),          QLatin1StringView("j"), QLatin1StringView("N"),        ValueKind::Text,   Verb::Convert, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "converts N videos side by side; 0 stands for as many as suit the cores", "Help: option --jobs") },
    OptionRow { QLatin1StringView("overwrite"),     {},                     {},                            ValueKind::None,   Verb::Convert, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "replaces files that exist; a video itself is never replaced", "Help: option --overwrite") },
    OptionRow { QLatin1StringView("skip-existing"), {},                     {},                            ValueKind::None,   Verb::Convert, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "leaves whole results that are newer than their videos alone, and makes cut ones again", "Help: option --skip-existing") },
    OptionRow { QLatin1StringView("shard"),         {},                     QLatin1StringView("K/N"),      ValueKind::Text,   Verb::Plan,    Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "takes the K-th of N parts of the videos; the parts depend on their names alone", "Help: option --shard") },
    OptionRow { QLatin1StringView("info"),          {},                     QLatin1StringView("JSONFILE"), ValueKind::File,   Verb::Plan,    Verb::Plan,    QT_TRANSLATE_NOOP3("Localizable", "takes a description saved by 'probe --json' (- for standard input) and prints only the arguments that depend on it", "Help: option --info") },
    OptionRow { QLatin1StringView("quiet"),         {},                     {},                            ValueKind::None,   Verb::Convert, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "prints failures only", "Help: option --quiet") },
    OptionRow { QLatin1StringView("json"),          {},                     {},                            ValueKind::None,   Verb::Formats, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "prints JSON; 'convert' prints one object a line", "Help: option --json") },
    OptionRow { QLatin1StringView("verbose"),       {},                     {},                            ValueKind::None,   Verb::Formats, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "prints diagnostics and the tool's full output to standard error", "Help: option --verbose") },
    OptionRow { QLatin1StringView("help"),          QLatin1StringView("h"), {},                            ValueKind::None,   Verb::Formats, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "prints this help", "Help: option --help") },
    OptionRow { QLatin1StringView("version"),       {},                     {},                            ValueKind::None,   Verb::Formats, Verb::Convert, QT_TRANSLATE_NOOP3("Localizable", "prints the version", "Help: option --version") },
};
// clang-format on

/// What a function makes of the options that a command takes, or of all.
[[nodiscard]] QStringList optionTexts(const auto &textOf, std::optional<Verb> verb = {})
{
    QStringList texts;
    for (const OptionRow &row : optionRows) {
        if (!verb || row.isTakenBy(*verb))
            texts << textOf(row);
    }
    return texts;
}

[[nodiscard]] QString generalHelp();
[[nodiscard]] QString helpOn(const VerbRow &row);

/// What the package is made with: "man" gives the manual page's section on options, "bash", "zsh"
/// and "fish" that shell's completion; empty for any other name.
[[nodiscard]] QString generatedText(const QString &name);
