// SPDX-License-Identifier: MIT
#pragma once

#include "planning/ConversionFormat.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// Bound on the output picture: a maximum, or none.
/// Units: pixels. Only the larger of width and height bounds the larger side of the picture.
class VideoDimensionsConstraints {
public:
    struct Maximum {
        qint64 width;
        qint64 height;
        bool operator==(const Maximum &) const = default;
    };

    constexpr static VideoDimensionsConstraints maximum(Maximum size)
    {
        return VideoDimensionsConstraints(size);
    }
    constexpr static VideoDimensionsConstraints unlimited()
    {
        return VideoDimensionsConstraints(std::nullopt);
    }

    /// The maximum; absent for an unlimited picture.
    [[nodiscard]] constexpr const std::optional<Maximum> &maximum() const { return m_maximum; }
    bool operator==(const VideoDimensionsConstraints &) const = default;

private:
    constexpr explicit VideoDimensionsConstraints(std::optional<Maximum> maximum)
        : m_maximum(maximum)
    {
    }

    std::optional<Maximum> m_maximum;
};

/// Preset that a menu entry stands for; a label only.
enum class VideoQualityConstraints { unchanged, low, medium, hd720, fullHD1080, uhd4k };

/// The ordinal, 0 to 5.
[[nodiscard]] constexpr int hashValue(VideoQualityConstraints quality)
{
    return static_cast<int>(quality);
}

/// What a menu entry asks for.
struct VideoConstraints {
    VideoDimensionsConstraints dimension;
    VideoQualityConstraints quality;
    ConversionFormat format;
    /// English name of the device or preset.
    QString destDevice;

    bool operator==(const VideoConstraints &) const = default;
};

/// The entry with exactly this menu title, if there is one. The other titles are those of the three
/// entries whose titles are translated.
[[nodiscard]] std::optional<VideoConstraints> videoConstraints(const QString &title,
    const QString &audioTitle, const QString &mp4LowQTitle, const QString &mp4MedQTitle);

/// Groups of the format menu, in its order.
enum class MenuGroup { Devices, Formats, Mp4Quality };

/// English names of the entries of a group, in menu order.
[[nodiscard]] QStringList entryNames(MenuGroup group);
/// English names of all 25 entries.
[[nodiscard]] QStringList entryNames();
