// SPDX-License-Identifier: MIT
#include "cli/arguments/Options.h"
#include "planning/VideoConstraints.h"

#include <QFile>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

/// "convert) words='--to -o --output' ;;", one line for each command.
QString cases(const QString &format, const QString &separator, const auto &textOf)
{
    QString lines;
    for (const VerbRow &row : verbRows)
        lines += format.arg(row.name, optionTexts(textOf, row.verb).join(separator)) + u'\n';
    return lines;
}

QString spellings(const OptionRow &row)
{
    return row.letter.isEmpty() ? u"--"_s + row.name : u"-%1 --%2"_s.arg(row.letter, row.name);
}

/// The options whose values are of this kind, as alternatives of a shell's "case".
QString alternatives(ValueKind kind)
{
    QStringList words;
    for (const OptionRow &row : optionRows) {
        if (row.kind == kind)
            words << spellings(row).replace(u' ', u" | "_s);
    }
    return words.join(u" | "_s);
}

QString english(const OptionRow &row) { return QString::fromUtf8(row.text.key); }

QString manOption(const OptionRow &row)
{
    const QString words = spellings(row).replace(u'-', u"\\-"_s).replace(u' ', u"\\fR, \\fB"_s);
    const QString value = row.value.isEmpty() ? QString() : u" \\fI%1\\fR"_s.arg(row.value);
    const QString text = english(row).replace(u'-', u"\\-"_s).replace(u"'"_s, u"\\(aq"_s);
    return u".TP\n\\fB%1\\fR%2\n%3."_s.arg(words, value, text);
}

/// "'(-o --output)'{-o,--output}'[the file to write]:OUT:_files'"
QString zshOption(const OptionRow &row)
{
    // In the order of the kinds.
    constexpr std::array actions{ ""_L1, ":_video_converter_names"_L1, ":_files"_L1,
        ":_files -/"_L1, ": "_L1 };
    QString action = actions.at(static_cast<std::size_t>(row.kind));
    if (row.kind != ValueKind::None)
        action.prepend(u':' + row.value);
    const QString text = english(row)
                             .replace(u"'"_s, uR"('\'')"_s)
                             .replace(u':', uR"(\:)"_s)
                             .replace(u']', uR"(\])"_s);
    const QString words = row.letter.isEmpty()
        ? u"'--%1"_s.arg(row.name)
        : u"'(-%1 --%2)'{-%1,--%2}'"_s.arg(row.letter, row.name);
    return words + u"[%1]%2'"_s.arg(text, action);
}

QString fishOption(const OptionRow &row)
{
    // In the order of the kinds.
    constexpr std::array actions{ ""_L1, " -x -a '(__video_converter_names)'"_L1, " -r -F"_L1,
        " -x -a '(__fish_complete_directories)'"_L1, " -x"_L1 };
    QStringList verbs;
    for (const VerbRow &each : verbRows) {
        if (row.isTakenBy(each.verb))
            verbs << each.name;
    }
    const QString letter = row.letter.isEmpty() ? QString() : u" -s "_s + row.letter;
    return u"complete -c video-converter-cli -n '__fish_seen_subcommand_from %1' -l %2%3%4 -d '%5'"_s
        .arg(verbs.join(u' '), row.name, letter, actions.at(static_cast<std::size_t>(row.kind)),
            english(row).replace(u"'"_s, u"\\'"_s));
}

QString casesOf(const QString &shell)
{
    if (shell == "bash"_L1)
        return cases(u"        %1) words=\"%2\" ;;"_s, u" "_s, spellings);
    if (shell == "zsh"_L1)
        return cases(
            u"        %1)\n            _arguments \\\n                %2 \\\n                "
            "'*:file:_files' ;;"_s,
            u" \\\n                "_s, zshOption);
    return optionTexts(fishOption).join(u'\n');
}

}

QString generatedText(const QString &name)
{
    if (name == "man"_L1)
        return optionTexts(manOption).join(u'\n');
    QFile shell(u":/completion/"_s + name);
    if (!shell.open(QIODevice::ReadOnly))
        return {};
    QStringList verbs;
    std::ranges::transform(verbRows, std::back_inserter(verbs), &VerbRow::name);
    return QString::fromUtf8(shell.readAll().trimmed())
        .replace(u"%ENTRY%"_s, alternatives(ValueKind::Entry))
        .replace(u"%FOLDER%"_s, alternatives(ValueKind::Folder))
        .replace(u"%TEXT%"_s, alternatives(ValueKind::Text))
        .replace(u"%CASES%"_s, casesOf(name))
        .replace(u"%NAMES%"_s, entryNames().join(u'\n'))
        .replace(u"%VERBS%"_s, verbs.join(u' '));
}
