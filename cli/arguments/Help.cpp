// SPDX-License-Identifier: MIT
#include "cli/arguments/Options.h"
#include "cli/report/ShownText.h"
#include "support/Localized.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int textColumn = 26;
constexpr int lastColumn = 80;

struct VerbRow {
    /// What stands after the command's name; lines of one usage each.
    QLatin1StringView usage;
    LocalizedText text;
};

// In the order of the verbs.
constexpr std::array verbRows{
    VerbRow{ "formats [--json]"_L1,
        QT_TRANSLATE_NOOP3("Localizable",
            "Lists the outputs that --to takes: devices, formats and MP4 qualities.",
            "Help: command formats") },
    VerbRow{ "probe FILE... [--json]"_L1,
        QT_TRANSLATE_NOOP3("Localizable",
            "Describes videos. With --json: everything that the tool reports (info), the length "
            "(duration, seconds) and the size of the cover picture or null (cover).",
            "Help: command probe") },
    VerbRow{ "plan --to NAME (FILE OUT | FILE... -d FOLDER | --info JSONFILE) [--json]"_L1,
        QT_TRANSLATE_NOOP3("Localizable",
            "Prints the tool's command line, quoted for a shell, without running it. --to all "
            "prints one for each output.",
            "Help: command plan") },
    VerbRow{ "convert --to NAME (FILE -o OUT | FILE... -d FOLDER) [OPTIONS]\n"
             "convert --to NAME (-r FOLDER | --files-from FILE) -d FOLDER [OPTIONS]"_L1,
        QT_TRANSLATE_NOOP3("Localizable",
            "Converts videos. Ctrl-C cancels and leaves no unfinished file. A name that begins "
            "with a dash goes after --.",
            "Help: command convert") },
};

/// Broken into lines between words; the first line begins in `column`, further ones too.
QString wrapped(const QString &text, int column)
{
    QString lines;
    QString line;
    for (const QString &word : text.split(u' ')) {
        if (!line.isEmpty() && column + columnsOf(line + u' ' + word) > lastColumn) {
            lines += line + u'\n' + QString(column, u' ');
            line = word;
        } else {
            line += line.isEmpty() ? word : u' ' + word;
        }
    }
    return lines + line;
}

QString optionLine(const OptionRow &row)
{
    QString words = row.letter.isEmpty() ? u"      --"_s : u"  -"_s + row.letter + u", --"_s;
    words += row.name;
    if (!row.value.isEmpty())
        words += u' ' + row.value;
    const bool isLong = columnsOf(words) > textColumn - 2;
    return (isLong ? words + u'\n' + QString(textColumn, u' ') : leftJustified(words, textColumn))
        + wrapped(localized(row.text), textColumn) + u'\n';
}

QString optionLines(Verb verb)
{
    QString lines;
    for (const OptionRow &row : optionRows) {
        if (row.isTakenBy(verb))
            lines += optionLine(row);
    }
    return lines;
}

QString usage(const QString &words)
{
    const QString program = u"video-converter-cli "_s;
    return formatted(QT_TRANSLATE_NOOP3("Localizable", "Usage: %@", "Help of the command"),
        { program + QString(words).replace(u'\n', u"\n       "_s + program) });
}

}

namespace Help {

QString general()
{
    QString text = usage(u"COMMAND [OPTIONS]"_s) + u"\n\n"_s;
    for (std::size_t verb = 0; verb < verbNames.size(); ++verb)
        text += u"  "_s + leftJustified(verbNames.at(verb), 10)
            + wrapped(localized(verbRows.at(verb).text), 12) + u'\n';
    return text + u'\n' + optionLines(Verb::Formats) + u'\n'
        + wrapped(
            localized(QT_TRANSLATE_NOOP3("Localizable",
                "Exit status: 0 done, 1 a conversion failed or its result is not whole, 2 wrong "
                "usage, 3 video refused, 4 destination refused, 5 a tool is missing, 128 + N "
                "stopped by signal N (130 after Ctrl-C). With several videos, the first one "
                "that was not converted decides.",
                "Help of the command")),
            0);
}

QString of(Verb verb)
{
    const VerbRow &row = verbRows.at(static_cast<std::size_t>(verb));
    return usage(row.usage) + u'\n' + wrapped(localized(row.text), 0) + u"\n\n"_s
        + optionLines(verb).chopped(1);
}

}
