// SPDX-License-Identifier: MIT
#include "engine/ToolFailure.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct FailureRow {
    /// Found in a line; group 1 is the detail. The system's own words stand at a line's end, so
    /// names of files that read like them mislead nobody.
    const char16_t *pattern;
    Reason reason;
};

// The first row that matches any of the last lines wins: later rows are often its consequences.
// clang-format off
constexpr std::array failureRows {
    FailureRow { u": No space left on device$", Reason::NoSpace },
    FailureRow { u": Disk quota exceeded$", Reason::QuotaExceeded },
    FailureRow { u": File too large$", Reason::FileTooLarge },
    FailureRow { u": Read-only file system$", Reason::ReadOnlyDisk },
    FailureRow { u": (?:Permission denied|Operation not permitted)$", Reason::AccessDenied },
    FailureRow { u"^Unknown encoder '(.*)'$", Reason::NoEncoder },
    FailureRow { u"^Requested output format '(.*)' is not a suitable output format$", Reason::NoMuxer },
    FailureRow { u": No such file or directory$", Reason::FileGone },
    FailureRow { u": File name too long$", Reason::NameTooLong },
    FailureRow { u": Input/output error$", Reason::DiskError },
    FailureRow { u": Cannot allocate memory$", Reason::NoMemory },
    FailureRow { u": (?:Resource temporarily unavailable|Too many open files)$", Reason::LimitMet },
    FailureRow { u"^Output file #\\d+ does not contain any stream$", Reason::NothingToConvert },
    FailureRow { u"^Error initializing output stream|^Could not write header for output file", Reason::StreamNotTaken },
    FailureRow { u"^Exiting normally, received signal", Reason::ToolStopped },
    FailureRow { u"Invalid data found when processing input$", Reason::DamagedData },
};
// clang-format on

constexpr qsizetype lastLines = 200;

QStringList linesOf(const QByteArray &output)
{
    static const QRegularExpression lineEnd(u"[\\r\\n]+"_s);
    // Invalid UTF-8 becomes replacement characters; the rest of the line stays.
    QStringList lines = QString::fromUtf8(output.right(qsizetype{ 256 } * 1024))
                            .split(lineEnd, Qt::SkipEmptyParts);
    return lines.mid(std::max<qsizetype>(0, lines.size() - lastLines));
}

/// Closing lines that say nothing about the reason.
bool isChatter(const QString &line)
{
    static const QRegularExpression chatter(
        u"^\\s|^\\[.*\\]|^Conversion failed!|^(Input|Output|Total|Stream)\\b|^video:\\d"_s);
    return chatter.match(line).hasMatch();
}

/// A tool that fails prints something after its last report; a killed one does not.
bool endsInTheMiddle(const QString &lastLine)
{
    static const QRegularExpression report(u"^(frame|size)=.* time=|^Press \\[q\\]"_s);
    return report.match(lastLine.trimmed()).hasMatch();
}

}

Outcome toolFailure(const QByteArray &output)
{
    const QStringList lines = linesOf(output);
    for (const FailureRow &row : failureRows) {
        const QRegularExpression expression(QString::fromUtf16(row.pattern));
        for (const QString &line : lines) {
            const QRegularExpressionMatch match = expression.match(line);
            if (match.hasMatch())
                return { .reason = row.reason, .detail = match.captured(1) };
        }
    }
    if (lines.isEmpty() || endsInTheMiddle(lines.last()))
        return { .reason = Reason::ToolKilled };
    const auto last = std::find_if_not(lines.rbegin(), lines.rend(), isChatter);
    return { .reason = Reason::ToolFailed,
        .detail = (last == lines.rend() ? lines.last() : *last).trimmed() };
}
