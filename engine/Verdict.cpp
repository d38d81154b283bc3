// SPDX-License-Identifier: MIT
#include "engine/Verdict.h"

#include "engine/Progress.h"
#include "engine/RunReport.h"
#include "engine/Task.h"
#include "planning/ConversionDescriptor.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// "10.023000", or as Matroska's tags have it "00:00:10.023000000"
double secondsOf(const JSON &object, const QString &key)
{
    double seconds = 0;
    for (const QString &part : object[key].stringValue().split(u':'))
        seconds = seconds * 60 + part.toDouble();
    return std::isfinite(seconds) ? std::max(seconds, 0.0) : 0;
}

// What the stream itself says; the tag tells where it ends. 0 where it says nothing.
double ownLength(const JSON &stream)
{
    const double length = secondsOf(stream, u"duration"_s);
    const double end = secondsOf(stream[u"tags"_s], u"DURATION"_s);
    return length > 0 ? length : std::max(end - secondsOf(stream, u"start_time"_s), 0.0);
}

double lengthOf(const JSON &stream, const JSON &info)
{
    const double whole = secondsOf(info[u"format"_s], u"duration"_s);
    const double own = ownLength(stream);
    return own > 0 && whole > 0 ? std::min(own, whole) : std::max(own, whole);
}

// Containers that count frames or tag their streams know each stream's own length; of others the
// tool may have spread the file's length over all streams.
bool statesOwnLength(const JSON &stream)
{
    return !stream[u"nb_frames"_s].stringValue().isEmpty()
        || !stream[u"tags"_s][u"DURATION"_s].stringValue().isEmpty();
}

bool isPicture(const JSON &stream) { return stream[u"codec_type"_s].stringValue() == u"video"; }

bool isImageFormat(const JSON &stream)
{
    static const QStringList formats{ u"mjpeg"_s, u"png"_s, u"bmp"_s, u"tiff"_s, u"webp"_s };
    return formats.contains(stream[u"codec_name"_s].stringValue());
}

// Matroska keeps no mark of a cover that is a track of its own; beside a video, an image is one.
bool isCover(const JSON &stream, const JSON &info)
{
    if (stream[u"disposition"_s][u"attached_pic"_s].intValue() == 1
        || stream[u"nb_frames"_s].stringValue() == u"1")
        return true;
    return isImageFormat(stream)
        && std::ranges::any_of(info[u"streams"_s].array(),
            [](const JSON &each) { return isPicture(each) && !isImageFormat(each); });
}

// Raw streams have no header that says how long they play: the tool's guess says nothing.
bool lengthIsGuessed(const JSON &info)
{
    static const QStringList rawFormats{ u"aac"_s, u"mp3"_s, u"ac3"_s, u"h264"_s, u"hevc"_s };
    return rawFormats.contains(info[u"format"_s][u"format_name"_s].stringValue());
}

double tolerance(double expected) { return std::max(1.0, expected / 100); }

// The file claims more than any of its streams does: some of it is gone.
bool claimsMoreThanItsStreams(const JSON &info)
{
    const double first = secondsOf(info[u"format"_s], u"start_time"_s);
    const double whole = secondsOf(info[u"format"_s], u"duration"_s);
    double last = 0;
    for (const JSON &stream : info[u"streams"_s].array()) {
        const double length = ownLength(stream);
        if (length <= 0 && stream[u"codec_type"_s].stringValue() != u"attachment")
            return false;
        last = std::max(last, secondsOf(stream, u"start_time"_s) - first + length);
    }
    return last > 0 && last < whole - tolerance(whole);
}

// What the tool can't read has no length.
std::optional<Lengths> measured(const QString &path, const Progress &progress, Reading reading)
{
    const QString entries = reading == Reading::Packets
        ? u"packet=codec_type,stream_index,pts_time,dts_time,duration_time"_s
        : u"frame=media_type,stream_index,pts_time,pkt_dts_time,pkt_duration_time"_s;
    Task task;
    task.setLaunchPath(toolPath(Tool::Ffprobe));
    task.setArguments(
        { u"-v"_s, u"quiet"_s, u"-show_entries"_s, entries, u"-of"_s, u"csv=p=0"_s, path });
    task.setAccess({ { path }, {} });
    if (!task.tryLaunch())
        return std::nullopt;
    PacketReader reader;
    while (task.isRunning() && !task.isSilentForTooLong() && !progress.isCancelled())
        reader.append(task.availableData());
    const bool wasStopped = task.isRunning();
    task.terminate();
    return wasStopped ? std::nullopt : std::optional(reader.lengths());
}

// Expected once the source was read: some of its streams may end before its length.
Lengths corrected(const Lengths &expected, const Lengths &source)
{
    Lengths lengths = expected;
    if (!source.picture)
        lengths.picture.reset();
    const double whole = expected.longest();
    if (!expected.isOfAllStreams
        || (!expected.isGuessed && source.whole < whole - tolerance(whole)))
        return lengths;
    if (lengths.picture)
        lengths.picture = std::min(*lengths.picture, *source.picture);
    if (lengths.sound)
        lengths.sound = std::min(*lengths.sound, source.sound.value_or(0));
    return lengths;
}

}

Lengths expectedOf(const ConversionJob &job)
{
    const JSON &info = job.conversionInfo;
    const ConversionFormat format = job.constraints.format;
    const bool claimsMore = claimsMoreThanItsStreams(info);
    // The first stream is carried, or where the tool chooses, any.
    const bool toolChooses = conversionDescriptor(format).vCodec.isEmpty();
    Lengths expected;
    for (const JSON &stream : info[u"streams"_s].array()) {
        const QString kind = stream[u"codec_type"_s].stringValue();
        const bool isMoving = kind == u"video" && !isCover(stream, info);
        const double length
            = claimsMore ? secondsOf(info[u"format"_s], u"duration"_s) : lengthOf(stream, info);
        const auto expect = [&](std::optional<double> &known) {
            if (!known || toolChooses)
                known = std::min(known.value_or(length), length);
        };
        if (isMoving && format != ConversionFormat::mp3)
            expect(expected.picture);
        if (kind == u"audio" && format != ConversionFormat::gif)
            expect(expected.sound);
        if (isMoving || kind == u"audio")
            expected.isOfAllStreams |= !statesOwnLength(stream);
    }
    return expected;
}

bool takesCoverForPicture(const ConversionJob &job)
{
    const auto chosen
        = conversionDescriptor(job.constraints.format).videoStream(job.conversionInfo);
    return chosen && isCover(chosen->item, job.conversionInfo) && expectedOf(job).picture;
}

bool isInDoubt(const Outcome &run, const RunReport &report, const Lengths &expected)
{
    const bool lacksPicture = expected.picture && report.pictureBytes.value_or(0) == 0;
    const bool lacksSound = expected.sound && report.soundBytes.value_or(0) == 0;
    return !run.isDone() || lacksPicture || lacksSound || report.damagedPlaces > 0
        || expected.longest() <= 0 || report.position.value_or(0) < expected.longest() - 1;
}

SourceData dataOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    SourceData data;
    const QByteArray head = file.read(4096);
    const auto size = static_cast<double>(file.size());
    for (const char *chunk : { "RIFF", "data" }) {
        const qsizetype start = head.startsWith("RIFF") ? head.indexOf(chunk) + 4 : -1;
        if (start < 4 || start + 4 > head.size())
            break;
        const auto claimed = qFromLittleEndian<quint32>(head.constData() + start);
        // The largest numbers are left by a program that did not know the size beforehand.
        if (claimed < 0x7fffff00)
            data.claim = std::max(data.claim, static_cast<double>(claimed) / size);
    }
    // One place may be silence between pictures; so many in a row are nothing at all.
    constexpr int places = 64;
    for (int place = 1, run = 0; place < places; ++place) {
        file.seek(file.size() / places * place);
        const QByteArray sample = file.read(512);
        run = sample.count('\0') == 512 ? run + 1 : 0;
        data.hasHole |= run >= 4;
    }
    return data;
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
    if (cells.size() < 5)
        return;
    bool hasTime = false;
    double time = cells[2].toDouble(&hasTime);
    if (!hasTime)
        time = cells[3].toDouble(&hasTime);
    if (!hasTime)
        return;
    Stream &stream = m_streams[cells[1].toInt()];
    stream.kind = cells[0];
    ++stream.packets;
    stream.start = std::min(stream.start, time);
    stream.end = std::max(stream.end, time + cells[4].toDouble());
}

Lengths PacketReader::lengths() const
{
    Lengths lengths;
    double first = qInf();
    double last = -qInf();
    for (const Stream &stream : m_streams) {
        first = std::min(first, stream.start);
        last = std::max(last, stream.end);
        const double length = stream.end - stream.start;
        if (stream.kind == "video" && stream.packets > 1)
            lengths.picture = std::max(lengths.picture.value_or(0), length);
        else if (stream.kind == "audio")
            lengths.sound = std::max(lengths.sound.value_or(0), length);
    }
    lengths.whole = std::max(last - first, 0.0);
    return lengths;
}

Outcome judged(const Lengths &result, const Lengths &expected)
{
    if (expected.picture && !result.picture)
        return { Reason::PictureMissing };
    if (expected.sound && !result.sound)
        return { Reason::SoundMissing };
    std::optional<double> reached;
    for (const auto &[length, wanted] :
        { std::pair(result.picture, expected.picture), std::pair(result.sound, expected.sound) }) {
        if (wanted && *length < *wanted - tolerance(*wanted))
            reached = std::max(reached, length);
    }
    if (!reached)
        return {};
    return { .reason = Reason::Incomplete, .seconds = static_cast<qint64>(*reached) };
}

std::optional<Outcome> inspected(
    const ConversionJob &job, const Lengths &expected, Reading reading, const Progress &progress)
{
    const auto result = measured(job.destPath, progress, reading);
    if (!result)
        return std::nullopt;
    const Outcome outcome = judged(*result, expected);
    const bool hangsOnSource = expected.isOfAllStreams || outcome.reason == Reason::PictureMissing;
    if (outcome.isDone() || !hangsOnSource)
        return outcome;
    const auto source = measured(job.path, progress, Reading::Packets);
    return source ? judged(*result, corrected(expected, *source)) : outcome;
}

bool holdsWholeResult(const ConversionJob &job, const Progress &progress)
{
    const QFileInfo result(job.destPath);
    if (!result.isFile() || result.lastModified() < QFileInfo(job.path).lastModified())
        return false;
    Lengths expected = expectedOf(job);
    expected.isGuessed = lengthIsGuessed(job.conversionInfo);
    const auto outcome = inspected(job, expected, Reading::Packets, progress);
    return outcome && outcome->isDone();
}
