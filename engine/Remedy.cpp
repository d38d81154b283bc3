// SPDX-License-Identifier: MIT
#include "engine/Remedy.h"

#include "engine/RunReport.h"
#include "engine/Verdict.h"
#include "planning/ConversionDescriptor.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct CauseRow {
    const char16_t *pattern;
    Remedy remedy;
};

// As the tool words it; the first row that fits counts.
constexpr std::array causeRows{
    CauseRow{ u"(?:width|height) not divisible by 2|Xvid: Could not create encoder",
        Remedy::SizeMadeEven },
    CauseRow{ u"sample rate \\d+ is not supported|does not support sample rate"
              u"|[Uu]nsupported channel layout|dts to muxer in stream 1"
              u"|[Ii]nvalid sample rate|[Uu]nsupported sample rate|\\[libvorbis @.*failed",
        Remedy::SoundEncoded },
    CauseRow{ u"unknown timestamp|non monotonically increasing dts|missing PTS|pts has no "
              u"value|first pts value must be set"
              u"|[Nn]ot currently supported in container|incompatible with output codec id"
              u"|bitstream malformed|is not compatible with",
        Remedy::PictureEncoded },
};

std::optional<ChosenStream> pictureOf(const ConversionJob &job)
{
    return conversionDescriptor(job.constraints.format).videoStream(job.conversionInfo);
}

bool isAttachedPicture(const QJsonObject &stream)
{
    return stream[u"disposition"_s][u"attached_pic"_s].toInt() == 1;
}

// The streams keep their places, which are their numbers.
template <class Edit> void editStreams(ConversionJob &job, const Edit &edit)
{
    QJsonObject info = job.conversionInfo.value().toObject();
    QJsonArray streams = info[u"streams"_s].toArray();
    for (qsizetype index = 0; index < streams.size(); ++index) {
        QJsonObject stream = streams[index].toObject();
        edit(stream, index);
        streams[index] = stream;
    }
    info[u"streams"_s] = streams;
    job.conversionInfo = JSON(info);
}

void hideCodec(ConversionJob &job, const QString &kind)
{
    editStreams(job, [&](QJsonObject &stream, qsizetype) {
        if (stream[u"codec_type"_s] == kind)
            stream.remove(u"codec_name"_s);
    });
}

void leaveCoverOut(ConversionJob &job)
{
    const auto picture = pictureOf(job);
    editStreams(job, [&](QJsonObject &stream, qsizetype index) {
        if (isAttachedPicture(stream) || (picture && picture->index == index))
            stream[u"codec_type"_s] = u"attachment"_s;
    });
}

// Only the larger side is bound; the plan makes the other one even.
void makeSizeEven(ConversionJob &job)
{
    const auto picture = pictureOf(job);
    if (!picture)
        return;
    const qint64 longest
        = std::max(picture->item[u"width"_s].intValue(), picture->item[u"height"_s].intValue());
    if (longest < 2)
        return;
    const qint64 even = (longest - 1) / 2 * 2;
    job.constraints.dimension
        = VideoDimensionsConstraints::maximum({ .width = even, .height = even });
}

void encodeSoundSafely(ConversionJob &job)
{
    hideCodec(job, u"audio"_s);
    editStreams(job, [](QJsonObject &stream, qsizetype) {
        if (stream[u"codec_type"_s] == u"audio"_s)
            stream[u"sample_rate"_s] = u"48000"_s;
        // No output holds more than eight channels.
        if (stream[u"channels"_s].toInt() > 8)
            stream[u"channels"_s] = 2;
    });
}

}

Remedy remedyFor(const Outcome &failure, const QByteArray &output, const ConversionJob &job)
{
    const bool fails = mayBeTheVideos(failure);
    if (!fails && failure.reason != Reason::PictureMissing)
        return Remedy::None;
    const auto picture = pictureOf(job);
    const bool isAttached = picture && isAttachedPicture(picture->item.value().toObject());
    if (takesCoverForPicture(job) || (fails && isAttached))
        return Remedy::CoverLeftOut;
    if (!fails)
        return Remedy::None;
    const QStringList lines = ownLines(output, { job.path, job.destPath });
    for (const CauseRow &row : causeRows) {
        if (!lines.filter(QRegularExpression(QString::fromUtf16(row.pattern))).isEmpty())
            return row.remedy == Remedy::PictureEncoded && !picture ? Remedy::SoundEncoded
                                                                    : row.remedy;
    }
    return Remedy::None;
}

ConversionJob remedied(ConversionJob job, Remedy remedy)
{
    // In the order of the remedies.
    constexpr std::array<void (*)(ConversionJob &), 5> edits{ [](ConversionJob &) {}, leaveCoverOut,
        makeSizeEven, encodeSoundSafely,
        [](ConversionJob &edited) { hideCodec(edited, u"video"_s); } };
    edits.at(static_cast<std::size_t>(remedy))(job);
    return job;
}
