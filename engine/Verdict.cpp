// SPDX-License-Identifier: MIT
#include "engine/Verdict.h"

#include "engine/RunReport.h"
#include "engine/Task.h"
#include "engine/Tool.h"
#include "planning/ConversionDescriptor.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// "10.023000", or as Matroska's tags have it "00:00:10.023000000"
double secondsIn(const QString &text)
{
    double seconds = 0;
    for (const QString &part : text.split(u':'))
        seconds = seconds * 60 + part.toDouble();
    return std::isfinite(seconds) ? std::max(seconds, 0.0) : 0;
}

double lengthOf(const JSON &stream, const JSON &info)
{
    for (const JSON &text : { stream[u"duration"_s], stream[u"tags"_s][u"DURATION"_s],
             info[u"format"_s][u"duration"_s] }) {
        if (const double seconds = secondsIn(text.stringValue()); seconds > 0)
            return seconds;
    }
    return 0;
}

bool isCover(const JSON &stream)
{
    return stream[u"disposition"_s][u"attached_pic"_s].intValue() == 1
        || stream[u"nb_frames"_s].stringValue() == u"1";
}

double tolerance(double expected) { return std::max(1.0, expected / 100); }

bool isShort(const std::optional<double> &length, const std::optional<double> &expected)
{
    return length && expected && *length < *expected - tolerance(*expected);
}

}

Lengths expectedOf(const ConversionJob &job)
{
    const ConversionFormat format = job.constraints.format;
    Lengths expected;
    for (const JSON &stream : job.conversionInfo[u"streams"_s].array()) {
        const QString kind = stream[u"codec_type"_s].stringValue();
        const double length = lengthOf(stream, job.conversionInfo);
        if (kind == u"video" && !isCover(stream) && format != ConversionFormat::mp3)
            expected.picture = std::max(expected.picture.value_or(0), length);
        if (kind == u"audio" && !expected.sound && format != ConversionFormat::gif)
            expected.sound = length;
    }
    return expected;
}

bool takesCoverForPicture(const ConversionJob &job)
{
    const auto chosen
        = conversionDescriptor(job.constraints.format).videoStream(job.conversionInfo);
    return chosen && isCover(chosen->item) && expectedOf(job).picture;
}

bool isInDoubt(const Outcome &run, const RunReport &report, const Lengths &expected)
{
    const bool lacksPicture = expected.picture && report.pictureBytes.value_or(0) == 0;
    const bool lacksSound = expected.sound && report.soundBytes.value_or(0) == 0;
    return !run.isDone() || lacksPicture || lacksSound || report.damagedPlaces > 0
        || expected.longest() <= 0 || report.position.value_or(0) < expected.longest() - 1;
}

void PacketReader::append(const QByteArray &chunk)
{
    m_rest += chunk;
    qsizetype start = 0;
    for (qsizetype end = 0; (end = m_rest.indexOf('\n', start)) >= 0; start = end + 1)
        readLine(m_rest.sliced(start, end - start));
    m_rest.remove(0, start);
}

void PacketReader::readLine(const QByteArray &line)
{
    const QList<QByteArray> cells = line.split(',');
    if (cells.size() < 5 || (cells[0] != "video" && cells[0] != "audio"))
        return;
    bool hasTime = false;
    double time = cells[2].toDouble(&hasTime);
    if (!hasTime)
        time = cells[3].toDouble(&hasTime);
    if (!hasTime)
        return;
    Stream &stream = m_streams[cells[1].toInt()];
    stream.isPicture = cells[0] == "video";
    const double end = time + cells[4].toDouble();
    const bool isFirst = stream.packets++ == 0;
    stream.start = isFirst ? time : std::min(stream.start, time);
    stream.end = isFirst ? end : std::max(stream.end, end);
}

Lengths PacketReader::lengths() const
{
    Lengths lengths;
    for (const Stream &stream : m_streams) {
        auto &length = stream.isPicture ? lengths.picture : lengths.sound;
        if (stream.packets > 1 || !stream.isPicture)
            length = std::max(length.value_or(0), stream.end - stream.start);
    }
    return lengths;
}

std::optional<Lengths> measured(const QString &path)
{
    Task task;
    task.setLaunchPath(toolPath(Tool::Ffprobe));
    task.setArguments({ u"-v"_s, u"quiet"_s, u"-show_entries"_s,
        u"packet=codec_type,stream_index,pts_time,dts_time,duration_time"_s, u"-of"_s, u"csv=p=0"_s,
        path });
    task.setAccess({ { path }, {} });
    if (!task.tryLaunch())
        return std::nullopt;
    PacketReader reader;
    while (task.isRunning() && !task.isSilentForTooLong())
        reader.append(task.availableData());
    task.terminate();
    return task.terminationStatus() == 0 ? std::optional(reader.lengths()) : std::nullopt;
}

Outcome judged(const Lengths &result, const Lengths &expected)
{
    if (expected.picture && !result.picture)
        return { Reason::PictureMissing };
    if (expected.sound && !result.sound)
        return { Reason::SoundMissing };
    const bool shortPicture = isShort(result.picture, expected.picture);
    const bool shortSound = isShort(result.sound, expected.sound);
    if (!shortPicture && !shortSound)
        return {};
    const double reached = shortPicture && shortSound ? std::max(*result.picture, *result.sound)
        : shortPicture                                ? *result.picture
                                                      : *result.sound;
    return { .reason = Reason::Incomplete, .seconds = static_cast<qint64>(reached) };
}
