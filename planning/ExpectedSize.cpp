// SPDX-License-Identifier: MIT
#include "planning/ExpectedSize.h"

#include "planning/PlannedWork.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Of the MP3 encoder when it is told none, for a channel at the usual rates; it knows two
/// channels.
constexpr double mp3BitRate = 64000;

qint64 mp3Channels(const JSON &conversionInfo)
{
    for (const JSON &stream : conversionInfo[u"streams"_s].array()) {
        if (stream[u"codec_type"_s].stringValue() != u"audio")
            continue;
        const qint64 rate = stream[u"sample_rate"_s].intValue();
        const bool isUsual = rate == 44100 || rate == 48000;
        return isUsual ? std::clamp<qint64>(stream[u"channels"_s].intValue(), 0, 2) : 0;
    }
    return 0;
}

}

std::optional<qint64> expectedSize(const VideoConstraints &entry, const JSON &conversionInfo)
{
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
