// SPDX-License-Identifier: MIT
#include "cli/arguments/Options.h"
#include "cli/report/ShownText.h"
#include "support/Localized.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int textColumn = 26;
constexpr int lastColumn = 80;

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
        + wrapped(localized(row.text), textColumn);
}

QString usage(const QString &words)
{
    const QString program = u"video-converter-cli "_s;
    return formatted(QT_TRANSLATE_NOOP3("Localizable", "Usage: %@", "Help of the command"),
        { program + QString(words).replace(u'\n', u"\n       "_s + program) });
}

}

QString generalHelp()
{
    QString text = usage(u"COMMAND [OPTIONS]"_s) + u"\n\n"_s;
    for (const VerbRow &row : verbRows)
        text += u"  "_s + leftJustified(row.name, 10) + wrapped(localized(row.text), 12) + u'\n';
    return text + u'\n' + optionTexts(optionLine, Verb::Formats).join(u'\n') + u"\n\n"_s
        + wrapped(
            localized(QT_TRANSLATE_NOOP3("Localizable",
                "Exit status: 0 done, 1 a conversion failed or its result is not whole, 2 wrong "
                "usage, 3 video refused, 4 destination refused, 5 a tool is missing, 128 + N "
                "stopped by signal N (130 after Ctrl-C). With several videos, the first one "
                "that was not converted decides.",
                "Help of the command")),
            0);
}

QString helpOn(const VerbRow &row)
{
    return usage(row.usage) + u'\n' + wrapped(localized(row.text), 0) + u"\n\n"_s
        + optionTexts(optionLine, row.verb).join(u'\n');
}
