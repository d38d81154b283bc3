// SPDX-License-Identifier: MIT
#include "planning/VideoConstraints.h"

#include <QLatin1StringView>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Where an entry's title in the menu comes from: its own English name, or a translated one.
enum class Title { Name, Audio, Mp4LowQ, Mp4MedQ };

struct EntryRow {
    QLatin1StringView name;
    VideoDimensionsConstraints dimension;
    VideoQualityConstraints quality;
    ConversionFormat format;
    MenuGroup group;
    Title title = Title::Name;
};

constexpr VideoDimensionsConstraints maximum(qint64 width, qint64 height)
{
    return VideoDimensionsConstraints::maximum({ .width = width, .height = height });
}

constexpr auto unlimited = VideoDimensionsConstraints::unlimited();

using enum VideoQualityConstraints;
using enum ConversionFormat;
using enum MenuGroup;

// In menu order.
// clang-format off
constexpr std::array<EntryRow, 25> entryRows {{
    {"iPhone 4, 4s"_L1,                       maximum(960, 640),   unchanged,  mp4,  Devices},
    {"iPhone 5, 5s, 5c"_L1,                   maximum(1136, 640),  unchanged,  mp4,  Devices},
    {"iPhone 6, 6s"_L1,                       maximum(1334, 750),  unchanged,  mp4,  Devices},
    {"iPhone 6s plus"_L1,                     maximum(1920, 1080), unchanged,  mp4,  Devices},
    {"iPad, iPad mini"_L1,                    maximum(1024, 768),  unchanged,  mp4,  Devices},
    {"iPad Air, Air 2, iPad mini 2, 3, 4"_L1, maximum(2048, 1536), unchanged,  mp4,  Devices},
    {"iPad Pro"_L1,                           maximum(2732, 2048), unchanged,  mp4,  Devices},
    {"AppleTV 1, 2"_L1,                       maximum(1280, 720),  unchanged,  mp4,  Devices},
    {"AppleTV 3"_L1,                          maximum(1920, 1080), unchanged,  mp4,  Devices},
    {"AppleTV 4"_L1,                          maximum(1920, 1080), unchanged,  mp4,  Devices},
    {"iMac, MacBook"_L1,                      unlimited,           unchanged,  mp4,  Devices},
    {"Linux"_L1,                              unlimited,           unchanged,  mp4,  Devices},
    {"Windows"_L1,                            unlimited,           unchanged,  avi,  Devices},
    {"audio"_L1,                              unlimited,           unchanged,  mp3,  Formats, Title::Audio},
    {"GIF"_L1,                                unlimited,           unchanged,  gif,  Formats},
    {"AVI"_L1,                                unlimited,           unchanged,  avi,  Formats},
    {"FLV"_L1,                                unlimited,           unchanged,  flv,  Formats},
    {"MKV"_L1,                                unlimited,           unchanged,  mkv,  Formats},
    {"WebM"_L1,                               unlimited,           unchanged,  webm, Formats},
    {"MP4"_L1,                                unlimited,           unchanged,  mp4,  Formats},
    {"MP4 Low Quality"_L1,                    maximum(480, 240),   low,        mp4,  Mp4Quality, Title::Mp4LowQ},
    {"MP4 Medium Quality"_L1,                 maximum(640, 480),   medium,     mp4,  Mp4Quality, Title::Mp4MedQ},
    {"MP4 HD 720"_L1,                         maximum(1280, 720),  hd720,      mp4,  Mp4Quality},
    {"MP4 FullHD 1080"_L1,                    maximum(1920, 1080), fullHD1080, mp4,  Mp4Quality},
    {"MP4 4k"_L1,                             maximum(4096, 2160), uhd4k,      mp4,  Mp4Quality},
}};
// clang-format on

}

std::optional<VideoConstraints> videoConstraints(const QString &title, const QString &audioTitle,
    const QString &mp4LowQTitle, const QString &mp4MedQTitle)
{
    for (const EntryRow &row : entryRows) {
        const std::array<QString, 4> titles{ row.name, audioTitle, mp4LowQTitle, mp4MedQTitle };
        if (titles.at(static_cast<std::size_t>(row.title)) == title)
            return VideoConstraints{ .dimension = row.dimension,
                .quality = row.quality,
                .format = row.format,
                .destDevice = row.name };
    }
    return std::nullopt;
}

QStringList entryNames(std::optional<MenuGroup> group)
{
    QStringList names;
    for (const EntryRow &row : entryRows) {
        if (row.group == group.value_or(row.group))
            names << row.name;
    }
    return names;
}
