// SPDX-License-Identifier: MIT
#include "planning/ConversionFormat.h"

#include "planning/ConversionDescriptor.h"

#include <QLatin1StringView>

#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace {

using Words = std::span<const QLatin1StringView>;

struct Row {
    ConversionFormat key;
    QLatin1StringView ext;
    QLatin1StringView vName;
    QLatin1StringView vCodec;
    QLatin1StringView aName;
    QLatin1StringView aCodec;
    QLatin1StringView format;
    QLatin1StringView vDop;
    Words extraCmd;
};

constexpr auto none = ""_L1;
constexpr std::array experimental{ "-strict"_L1, "experimental"_L1 };
constexpr std::array smallAnimation{ "-vf"_L1, R"(scale=min(iw\,600):-1)"_L1, "-pix_fmt"_L1,
    "rgb24"_L1, "-r"_L1, "10"_L1 };

using enum ConversionFormat;

// In the order of the raw values. The formats without a video encoder leave the choice of streams
// to the tool.
// clang-format off
constexpr std::array<Row, 9> rows {{
    // ext           vName             vCodec            aName         aCodec            muxer         vDop         extraCmd
    {flv,  "flv"_L1,  "h264"_L1,       "libx264"_L1,    "mp3"_L1,    "libmp3lame"_L1, "flv"_L1,      none,        {}},
    {mp4,  "mp4"_L1,  "h264"_L1,       "libx264"_L1,    "aac"_L1,    "aac"_L1,        "mp4"_L1,      none,        experimental},
    {mkv,  "mkv"_L1,  "h264"_L1,       "libx264"_L1,    "aac"_L1,    "aac"_L1,        "matroska"_L1, none,        experimental},
    {mov,  "mov"_L1,  "mpeg4"_L1,      "libxvid"_L1,    "aac"_L1,    "aac"_L1,        "mov"_L1,      "-q:v 6"_L1, experimental},
    {avi,  "avi"_L1,  "mpeg4"_L1,      "libxvid"_L1,    "mp3"_L1,    "libmp3lame"_L1, "avi"_L1,      "-q:v 6"_L1, {}},
    {mp3,  "mp3"_L1,  none,            none,            "mp3"_L1,    "libmp3lame"_L1, "mp3"_L1,      none,        {}},
    {mpg,  "mpg"_L1,  "mpeg2video"_L1, "mpeg2video"_L1, "ac3"_L1,    "ac3"_L1,        "vob"_L1,      "-q:v 6"_L1, {}},
    {gif,  "gif"_L1,  "gif"_L1,        none,            none,        none,            "gif"_L1,      none,        smallAnimation},
    {webm, "webm"_L1, "vp8"_L1,        "libvpx"_L1,     "vorbis"_L1, "libvorbis"_L1,  "webm"_L1,     none,        {}},
}};
// clang-format on

constexpr bool rowsFollowTheirKeys()
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (hashValue(rows[i].key) != static_cast<int>(i))
            return false;
    }
    return true;
}
static_assert(rowsFollowTheirKeys());

}

ConversionDescriptor conversionDescriptor(ConversionFormat format)
{
    const Row &row = rows.at(static_cast<std::size_t>(hashValue(format)));
    return { .ext = row.ext,
        .vName = row.vName,
        .vCodec = row.vCodec,
        .aName = row.aName,
        .aCodec = row.aCodec,
        .format = row.format,
        .vDop = row.vDop,
        .extraCmd = QStringList(row.extraCmd.begin(), row.extraCmd.end()) };
}
