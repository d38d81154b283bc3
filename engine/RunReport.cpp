// SPDX-License-Identifier: MIT
#include "engine/RunReport.h"

#include "engine/ToolOutput.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// "[h264 @ 0x5] error while decoding MB 5 0", "Error while decoding stream #0:1: Invalid data"
const QRegularExpression &damage()
{
    static const QRegularExpression expression(
        uR"(^Error while decoding stream|: corrupt (?:input packet|decoded frame) in stream|^\[[^\]]*\] .*(?:)"
        uR"(error while decoding|Invalid NAL unit|Packet corrupt|partial file|File ended prematurely|)"
        uR"(invalid as first byte|exceeds containing|corrupted macroblock|ac-tex damaged|[Hh]eader missing|)"
        uR"(is not allocated|PES packet size mismatch|Truncating packet|invalid new backstep|)"
        uR"(Invalid data found|[Ee]rror reading|slice mismatch|invalid mb type|end mismatch|could not find sync byte))"_s);
    return expression;
}

std::optional<double> positionIn(const QString &line)
{
    // "frame=  250 fps=125 size=   512kB time=00:00:10.00 bitrate= 419.4kbits/s speed=5x"
    static const QRegularExpression report(
        uR"(\btime=(\d{1,6}):(\d\d):(\d\d(?:\.\d+)?) bitrate)"_s);
    const QRegularExpressionMatch match = report.match(line);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1).toInt() * 3600 + match.captured(2).toInt() * 60
        + match.captured(3).toDouble();
}

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

RunReport reportOf(const QByteArray &output, const QStringList &paths)
{
    // "video:14kB audio:1kB subtitle:0kB other streams:0kB", newer versions with "KiB"
    static const QRegularExpression summary(uR"(\bvideo:(\d{1,15})Ki?B audio:(\d{1,15})Ki?B )"_s,
        QRegularExpression::CaseInsensitiveOption);
    RunReport report;
    bool wasDamaged = false;
    for (const QString &line : ownLines(output, paths)) {
        if (const auto position = positionIn(line))
            report.position = position;
        const bool isDamaged = damage().match(line).hasMatch();
        // One place often takes several lines to tell.
        if (isDamaged && !wasDamaged && report.damagedPlaces++ == 0
            && report.position.value_or(0) >= 1)
            report.firstDamage = static_cast<qint64>(*report.position);
        wasDamaged = isDamaged;
        report.lengthIsGuessed |= line.contains(u"Estimating duration from bitrate");
        if (const auto match = summary.match(line); match.hasMatch()) {
            report.pictureBytes = match.captured(1).toLongLong();
            report.soundBytes = match.captured(2).toLongLong();
        }
    }
    return report;
}

QStringList ownLines(const QByteArray &output, const QStringList &paths)
{
    static const QRegularExpression lineEnd(u"[\r\n]"_s);
    return QString::fromUtf8(ToolOutput::OwnLines(paths).in(output))
        .split(lineEnd, Qt::SkipEmptyParts);
}

bool reportsLostOutput(const QByteArray &output, const QStringList &paths)
{
    // "Error writing trailer of out.mp4: No space left on device", newer versions with "[out#0/mp4
    // @ 0x55d0] " in front; only statistics follow.
    static const QRegularExpression lost(
        uR"(^(?:\[[^\]]*\] )?Error (?:writing trailer|closing file)\b)"_s);
    return !ownLines(output.right(16384), paths).filter(lost).isEmpty();
}

Outcome toolFailure(const QByteArray &output)
{
    const QStringList all = ownLines(output.right(qsizetype{ 256 } * 1024), {});
    const QStringList lines = all.mid(std::max<qsizetype>(0, all.size() - lastLines));
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
