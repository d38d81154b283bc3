// SPDX-License-Identifier: MIT
#include "ui/window/VideoWords.h"

#include "planning/ConversionDescriptor.h"
#include "planning/PlannedWork.h"
#include "support/Localized.h"
#include "support/Path.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Words = std::array<std::array<LocalizedText, 3>, 3>;

constexpr LocalizedText nothing{ "", "" };

// Each row for a picture that is not carried, copied, encoded; in it the sound likewise.
// clang-format off
constexpr Words planWords{ {
    { nothing,
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copies the sound, takes seconds", "What an entry of the format menu does with the video"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encodes the sound anew", "What an entry of the format menu does with the video") },
    { LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copies the picture, takes seconds", "What an entry of the format menu does with the video"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copies picture and sound, takes seconds", "What an entry of the format menu does with the video"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copies the picture, encodes the sound anew", "What an entry of the format menu does with the video") },
    { LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encodes the picture anew", "What an entry of the format menu does with the video"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encodes the picture anew, copies the sound", "What an entry of the format menu does with the video"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encodes picture and sound anew", "What an entry of the format menu does with the video") },
} };

constexpr Words workWords{ {
    { nothing,
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copying the sound", "What a running conversion does"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encoding the sound", "What a running conversion does") },
    { LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copying the picture", "What a running conversion does"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copying picture and sound", "What a running conversion does"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Copying the picture, encoding the sound", "What a running conversion does") },
    { LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encoding the picture", "What a running conversion does"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encoding the picture, copying the sound", "What a running conversion does"),
      LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Encoding picture and sound", "What a running conversion does") },
} };

/// Names that people know, by how the tool's begin.
constexpr std::array<std::array<QLatin1StringView, 2>, 9> codecNames{ {
    { "h264"_L1, "H.264"_L1 },       { "hevc"_L1, "H.265"_L1 },   { "mpeg4"_L1, "MPEG-4"_L1 },
    { "mpeg2video"_L1, "MPEG-2"_L1 }, { "prores"_L1, "ProRes"_L1 }, { "vorbis"_L1, "Vorbis"_L1 },
    { "opus"_L1, "Opus"_L1 },        { "theora"_L1, "Theora"_L1 }, { "pcm_"_L1, "PCM"_L1 },
} };
// clang-format on

QString wordsIn(const Words &words, const PlannedWork &work)
{
    const auto index = [](StreamWork what) { return static_cast<std::size_t>(what); };
    return work.isEmpty() ? QString()
                          : localized(words.at(index(work.picture)).at(index(work.sound)));
}

QString codecOf(const std::optional<ChosenStream> &stream)
{
    const QString name = stream ? stream->item[u"codec_name"_s].stringValue() : QString();
    for (const auto &[start, known] : codecNames) {
        if (name.startsWith(start))
            return known;
    }
    return name.toUpper();
}

QString bytes(qint64 count)
{
    return QLocale().formattedDataSize(count, 1, QLocale::DataSizeSIFormat);
}

}

QString VideoWords::joined(const QStringList &parts)
{
    QStringList shown;
    for (const QString &part : parts) {
        if (!part.isEmpty())
            shown << QChar(0x2068) + part + QChar(0x2069);
    }
    return shown.join(u" · "_s);
}

QString VideoWords::willDo(const PlannedWork &work)
{
    QStringList words{ wordsIn(planWords, work) };
    if (work.scaledTo)
        words << formatted(QT_TRANSLATE_NOOP3("Localizable", "Scales to %d × %d",
                               "What an entry of the format menu does: width, height"),
            { qint64(work.scaledTo->width()), qint64(work.scaledTo->height()) });
    return joined(words);
}

QString VideoWords::isDoing(const PlannedWork &work) { return wordsIn(workWords, work); }

QString VideoWords::factsOf(const JSON &info)
{
    QStringList facts;
    if (const qint64 size = info[u"format"_s][u"size"_s].intValue(); size > 0)
        facts << bytes(size);
    const auto picture = firstStream(info, "video"_L1);
    const qint64 width = picture ? picture->item[u"width"_s].intValue() : 0;
    const qint64 height = picture ? picture->item[u"height"_s].intValue() : 0;
    if (width > 0 && height > 0)
        facts << formatted(
            QT_TRANSLATE_NOOP3("Localizable", "%d × %d", "width and height of a picture"),
            { width, height });
    return joined(facts << codecOf(picture) << codecOf(firstStream(info, "audio"_L1)));
}

QString VideoWords::resultLine(const QString &path, const QString &length)
{
    return joined({ Path::lastPathComponent(path), bytes(QFileInfo(path).size()), length });
}

QString VideoWords::expectedSize(const std::optional<qint64> &size)
{
    return size ? formatted(QT_TRANSLATE_NOOP3("Localizable", "The result will take about %@.",
                                "in the save panel, with a size such as 12.3 MB"),
               { bytes(*size) })
                : QString();
}
