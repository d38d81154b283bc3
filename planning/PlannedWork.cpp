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

bool holds(const JSON &conversionInfo, QLatin1StringView kind)
{
    const std::vector<JSON> streams = conversionInfo[u"streams"_s].array();
    return std::any_of(streams.begin(), streams.end(),
        [&](const JSON &stream) { return stream[u"codec_type"_s].stringValue() == kind; });
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

}

PlannedWork plannedWork(const VideoConstraints &entry, const JSON &conversionInfo)
{
    const ConversionDescriptor descriptor = conversionDescriptor(entry.format);
    // Without named encoders the tool takes its own choice of streams and encodes them.
    if (descriptor.vCodec.isEmpty()) {
        const auto encoded = [&](ConversionFormat format, QLatin1StringView kind) {
            return entry.format == format && holds(conversionInfo, kind) ? StreamWork::Encoded
                                                                         : StreamWork::LeftOut;
        };
        return { .picture = encoded(ConversionFormat::gif, "video"_L1),
            .sound = encoded(ConversionFormat::mp3, "audio"_L1) };
    }
    const QStringList arguments
        = descriptor.ffmpegArguments({}, {}, conversionInfo, entry.dimension);
    PlannedWork work{ .picture = workOf(arguments, "-vcodec"_L1),
        .sound = workOf(arguments, "-acodec"_L1) };
    if (const auto picture = descriptor.videoStream(conversionInfo))
        work.scaledTo = scaledSize(arguments, picture->item);
    return work;
}
