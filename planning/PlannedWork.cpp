// SPDX-License-Identifier: MIT
#include "planning/PlannedWork.h"

#include "planning/ConversionDescriptor.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

StreamWork workOf(const QStringList &arguments, QLatin1StringView codecOption)
{
    const qsizetype option = arguments.indexOf(codecOption);
    if (option < 0)
        return StreamWork::LeftOut;
    return arguments.value(option + 1) == "copy"_L1 ? StreamWork::Copied : StreamWork::Encoded;
}

/// "scale=960:-2" or "scale=-2:960": the tool makes the other side the nearest even number.
std::optional<QSize> scaledSize(const QStringList &arguments, const JSON &picture)
{
    const qsizetype option = arguments.indexOf("-vf"_L1);
    if (option < 0)
        return std::nullopt;
    const QStringList sides = arguments.value(option + 1).section(u'=', 1).split(u':');
    const double width = picture[u"width"_s].value().toDouble();
    const double height = picture[u"height"_s].value().toDouble();
    const int first = sides.value(0).toInt();
    const int second = sides.value(1).toInt();
    const int bound = std::max(first, second);
    const double shorter = bound * std::min(width, height) / std::max(width, height);
    const int other = qRound(std::clamp(shorter, 0.0, static_cast<double>(bound)) / 2) * 2;
    return first > 0 ? QSize(bound, other) : QSize(other, bound);
}

qint64 mp3Channels(const JSON &conversionInfo)
{
    const auto sound = firstStream(conversionInfo, "audio"_L1);
    const qint64 rate = sound ? sound->item[u"sample_rate"_s].intValue() : 0;
    const bool isUsual = rate == 44100 || rate == 48000;
    return isUsual ? std::clamp<qint64>(sound->item[u"channels"_s].intValue(), 0, 2) : 0;
}

}

PlannedWork plannedWork(const VideoConstraints &entry, const JSON &conversionInfo)
{
    const ConversionDescriptor descriptor = conversionDescriptor(entry.format);
    // Without named encoders the tool takes its own choice of streams and encodes them.
    if (descriptor.vCodec.isEmpty()) {
        const auto encoded = [&](const QString &codec, QLatin1StringView kind) {
            return !codec.isEmpty() && firstStream(conversionInfo, kind) ? StreamWork::Encoded
                                                                         : StreamWork::LeftOut;
        };
        return { .picture = encoded(descriptor.vName, "video"_L1),
            .sound = encoded(descriptor.aName, "audio"_L1) };
    }
    const QStringList arguments
        = descriptor.ffmpegArguments({}, {}, conversionInfo, entry.dimension);
    PlannedWork work{ .picture = workOf(arguments, "-vcodec"_L1),
        .sound = workOf(arguments, "-acodec"_L1) };
    if (const auto picture = descriptor.videoStream(conversionInfo))
        work.scaledTo = scaledSize(arguments, picture->item);
    return work;
}

std::optional<qint64> expectedSize(const VideoConstraints &entry, const JSON &conversionInfo)
{
    // The MP3 encoder's default, for each of two channels at the usual rates.
    constexpr double mp3BitRate = 64000;
    const PlannedWork work = plannedWork(entry, conversionInfo);
    const JSON format = conversionInfo[u"format"_s];
    const double seconds = format[u"duration"_s].stringValue().toDouble();
    const qint64 channels = mp3Channels(conversionInfo);
    if (entry.format == ConversionFormat::mp3 && seconds > 0 && channels > 0)
        return static_cast<qint64>(std::min(seconds, 1e9) * mp3BitRate * double(channels) / 8);
    // A file that holds the copied streams only is as large as they are.
    const std::size_t carried = std::size_t{ work.picture != StreamWork::LeftOut }
        + std::size_t{ work.sound != StreamWork::LeftOut };
    const qint64 size = format[u"size"_s].intValue();
    if (!work.isCopy() || size <= 0 || conversionInfo[u"streams"_s].array().size() != carried)
        return std::nullopt;
    return size;
}
