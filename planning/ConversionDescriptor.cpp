// SPDX-License-Identifier: MIT
#include "planning/ConversionDescriptor.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList mapArguments(const ChosenStream &stream)
{
    return { u"-map"_s, u"0:"_s + QString::number(stream.index) };
}

/// The longer side becomes the bound, the tool makes the other one even.
QStringList scalingArguments(const JSON &video, const VideoDimensionsConstraints &constraints)
{
    const std::optional<qint64> width = video[u"width"_s].integer();
    const std::optional<qint64> height = video[u"height"_s].integer();
    if (!width || !height || !constraints.maximum())
        return {};
    const qint64 bound = std::max(constraints.maximum()->width, constraints.maximum()->height);
    if (std::max(*width, *height) <= bound)
        return {};
    const QString side = QString::number(bound);
    return { u"-vf"_s, *width < *height ? u"scale=-2:"_s + side : u"scale="_s + side + u":-2"_s };
}

QStringList videoArguments(const ConversionDescriptor &descriptor, const ChosenStream &video,
    const VideoDimensionsConstraints &constraints)
{
    const QStringList scaling = scalingArguments(video.item, constraints);
    QStringList arguments = scaling + mapArguments(video);
    if (scaling.isEmpty() && video.item[u"codec_name"_s].string() == descriptor.vName)
        return arguments << u"-vcodec"_s << u"copy"_s;
    return arguments << u"-vcodec"_s << descriptor.vCodec
                     << descriptor.vDop.split(u' ', Qt::SkipEmptyParts);
}

/// MP3 is always stereo, at a rate that all of its players and containers know.
QStringList mp3Arguments(const QString &rate)
{
    static const QStringList rates{ u"44100"_s, u"22050"_s, u"11025"_s };
    return { u"-ar"_s, rates.contains(rate) ? rate : rates.first(), u"-ac"_s, u"2"_s };
}

QStringList audioArguments(const ConversionDescriptor &descriptor, const ChosenStream &audio)
{
    QStringList arguments = mapArguments(audio);
    if (audio.item[u"codec_name"_s].stringValue() == descriptor.aName)
        return arguments << u"-acodec"_s << u"copy"_s;
    arguments << u"-acodec"_s << descriptor.aCodec;
    const QString rate = audio.item[u"sample_rate"_s].stringValue();
    if (descriptor.aName == "mp3"_L1)
        return arguments << mp3Arguments(rate);
    qint64 channels = audio.item[u"channels"_s].intValue();
    if (descriptor.aName == "aac"_L1)
        channels = std::max<qint64>(channels, 2);
    return arguments << u"-ar"_s << rate << u"-ac"_s << QString::number(channels);
}

}

std::optional<ChosenStream> firstStream(const JSON &conversionInfo, QLatin1StringView kind)
{
    qint64 index = 0;
    for (const JSON &item : conversionInfo[u"streams"_s].array()) {
        if (item[u"codec_type"_s].stringValue() == kind)
            return ChosenStream{ index, item };
        ++index;
    }
    return std::nullopt;
}

std::optional<ChosenStream> ConversionDescriptor::videoStream(const JSON &conversionInfo) const
{
    return vCodec.isEmpty() ? std::nullopt : firstStream(conversionInfo, "video"_L1);
}

std::optional<ChosenStream> ConversionDescriptor::audioStream(const JSON &conversionInfo) const
{
    // The video encoder decides here too: without one the tool's own choice of streams applies.
    return vCodec.isEmpty() ? std::nullopt : firstStream(conversionInfo, "audio"_L1);
}

QStringList ConversionDescriptor::ffmpegArguments(const QString & /*path*/,
    const QString & /*destPath*/, const JSON &conversionInfo,
    const VideoDimensionsConstraints &constraints) const
{
    QStringList arguments;
    if (const std::optional<ChosenStream> video = videoStream(conversionInfo))
        arguments << videoArguments(*this, *video, constraints);
    if (const std::optional<ChosenStream> audio = audioStream(conversionInfo))
        arguments << audioArguments(*this, *audio);
    return arguments << extraCmd << u"-f"_s << format;
}
