// SPDX-License-Identifier: MIT
#include "engine/RunReport.h"

#include "engine/ToolOutput.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// "[h264 @ 0x55ba26753540] error while decoding MB 5 0", "[mpegts @ 0x5622b22c9940] Packet corrupt
// (stream = 0, dts = 578090).", "Error while decoding stream #0:1: Invalid data found when
// processing input"
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
        if (isDamaged && !wasDamaged && report.damagedPlaces++ == 0)
            report.firstDamage = report.position.value_or(0) >= 1
                ? std::optional(static_cast<qint64>(*report.position))
                : std::nullopt;
        wasDamaged = isDamaged;
        if (line.contains(u"Estimating duration from bitrate"))
            report.lengthIsGuessed = true;
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
