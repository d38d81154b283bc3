// SPDX-License-Identifier: MIT
#pragma once

#include "planning/ConversionFormat.h"

#include <QStringList>

#include <optional>

/// Bound on the output picture, or none. Units: pixels. The larger number bounds the larger side.
struct VideoDimensionsConstraints {
    struct Maximum {
        qint64 width;
        qint64 height;
        bool operator==(const Maximum &) const = default;
    };

    std::optional<Maximum> bound;

    constexpr static VideoDimensionsConstraints maximum(Maximum size) { return { size }; }
    constexpr static VideoDimensionsConstraints unlimited() { return {}; }
    [[nodiscard]] constexpr const std::optional<Maximum> &maximum() const { return bound; }
    bool operator==(const VideoDimensionsConstraints &) const = default;
};

/// Preset that a menu entry stands for; a label only.
enum class VideoQualityConstraints { unchanged, low, medium, hd720, fullHD1080, uhd4k };

[[nodiscard]] constexpr int hashValue(VideoQualityConstraints quality)
{
    return static_cast<int>(quality);
}

struct VideoConstraints {
    VideoDimensionsConstraints dimension;
    VideoQualityConstraints quality;
    ConversionFormat format;
    QString destDevice;

    bool operator==(const VideoConstraints &) const = default;
};

/// The entry with this menu title; the other titles are those of the three translated entries.
[[nodiscard]] std::optional<VideoConstraints> videoConstraints(const QString &title,
    const QString &audioTitle, const QString &mp4LowQTitle, const QString &mp4MedQTitle);

enum class MenuGroup { Devices, Formats, Mp4Quality };

/// In menu order; of all groups without one.
[[nodiscard]] QStringList entryNames(std::optional<MenuGroup> group = {});
