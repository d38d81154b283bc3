// SPDX-License-Identifier: MIT
#include "cli/ToolFailure.h"

#include "cli/ShownText.h"
#include "support/Format.h"
#include "support/Localized.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    /// Found in a line; group 1 fills the sentence. The system's own words stand at a line's end,
    /// so names of files that sound like them mislead nobody.
    const char16_t *pattern;
    LocalizedText sentence;
};

// The first row that any of the last lines fits is the reason: what comes later is often only its
// consequence.
// clang-format off
constexpr std::array rows {
    Row { u": No space left on device$",
        QT_TRANSLATE_NOOP3("Localizable", "There is no space left on the destination's disk.", "Why a conversion failed") },
    Row { u": Disk quota exceeded$",
        QT_TRANSLATE_NOOP3("Localizable", "The disk quota is used up.", "Why a conversion failed") },
    Row { u": File too large$",
        QT_TRANSLATE_NOOP3("Localizable", "The destination's disk does not take a file so large.", "Why a conversion failed") },
    Row { u": Read-only file system$",
        QT_TRANSLATE_NOOP3("Localizable", "The destination's disk is read-only.", "Why a conversion failed") },
    Row { u": (?:Permission denied|Operation not permitted)$",
        QT_TRANSLATE_NOOP3("Localizable", "Permission was denied to read the video or to write the result.", "Why a conversion failed") },
    Row { u"^Unknown encoder '(.*)'$",
        QT_TRANSLATE_NOOP3("Localizable", "The installed tool has no encoder %@.", "Why a conversion failed") },
    Row { u"^Requested output format '(.*)' is not a suitable output format$",
        QT_TRANSLATE_NOOP3("Localizable", "The installed tool can't write the format %@.", "Why a conversion failed") },
    Row { u": No such file or directory$",
        QT_TRANSLATE_NOOP3("Localizable", "The video or the destination's folder has gone.", "Why a conversion failed") },
    Row { u": File name too long$",
        QT_TRANSLATE_NOOP3("Localizable", "The destination's name is too long.", "Why a conversion failed") },
    Row { u": Input/output error$",
        QT_TRANSLATE_NOOP3("Localizable", "A disk reported an error.", "Why a conversion failed") },
    Row { u": Cannot allocate memory$",
        QT_TRANSLATE_NOOP3("Localizable", "There was not enough memory.", "Why a conversion failed") },
    Row { u"^Output file #\\d+ does not contain any stream$",
        QT_TRANSLATE_NOOP3("Localizable", "The video holds nothing that this output can take.", "Why a conversion failed") },
    Row { u"^Error initializing output stream|^Could not write header for output file",
        QT_TRANSLATE_NOOP3("Localizable", "The encoder does not take the video's picture or sound as it is.", "Why a conversion failed") },
    Row { u"^The tool has been silent for too long",
        QT_TRANSLATE_NOOP3("Localizable", "The tool was silent for too long and was stopped.", "Why a conversion failed") },
    Row { u"^Exiting normally, received signal",
        QT_TRANSLATE_NOOP3("Localizable", "The tool was stopped from outside.", "Why a conversion failed") },
    Row { u"Invalid data found when processing input$",
        QT_TRANSLATE_NOOP3("Localizable", "The video's data is damaged.", "Why a conversion failed") },
};
// clang-format on

constexpr qsizetype lastLines = 200;

QStringList linesOf(const QByteArray &output)
{
    static const QRegularExpression lineEnd(u"[\\r\\n]+"_s);
    // Bytes that are no UTF-8 lose nothing but themselves here.
    QStringList lines = QString::fromUtf8(output.right(qsizetype{ 256 } * 1024))
                            .split(lineEnd, Qt::SkipEmptyParts);
    return lines.mid(std::max<qsizetype>(0, lines.size() - lastLines));
}

/// Closing words that come with every end or tell nothing of its reason.
bool isChatter(const QString &line)
{
    static const QRegularExpression chatter(
        u"^\\s|^\\[.*\\]|^Conversion failed!|^(Input|Output|Total|Stream)\\b"_s);
    return chatter.match(line).hasMatch();
}

/// A tool that fails says something after its last report; one that is killed does not.
bool endsInTheMiddle(const QString &lastLine)
{
    static const QRegularExpression report(u"^(frame|size)=.* time=|^Press \\[q\\]"_s);
    return report.match(lastLine.trimmed()).hasMatch();
}

QString sentenceFor(const QString &line)
{
    return formatted(localized(QT_TRANSLATE_NOOP3("Localizable", "The tool failed: %@",
                         "Why a conversion failed; the tool's own words follow")),
        { printable(line.trimmed()) });
}

}

QString toolFailureSentence(const QByteArray &output)
{
    const QStringList lines = linesOf(output);
    for (const Row &row : rows) {
        const QRegularExpression expression(QString::fromUtf16(row.pattern));
        for (const QString &line : lines) {
            const QRegularExpressionMatch match = expression.match(line);
            if (match.hasMatch())
                return formatted(localized(row.sentence), { printable(match.captured(1)) });
        }
    }
    if (lines.isEmpty() || endsInTheMiddle(lines.last()))
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "The tool was killed before it was done.", "Why a conversion failed"));
    const auto last = std::find_if_not(lines.rbegin(), lines.rend(), isChatter);
    return sentenceFor(last == lines.rend() ? lines.last() : *last);
}
