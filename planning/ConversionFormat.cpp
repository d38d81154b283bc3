// SPDX-License-Identifier: MIT
#include "planning/ConversionFormat.h"

#include "planning/ConversionDescriptor.h"

#include <array>

using namespace Qt::StringLiterals;

ConversionDescriptor conversionDescriptor(ConversionFormat format)
{
    constexpr auto none = ""_L1;
    static const QStringList experimental{ u"-strict"_s, u"experimental"_s };
    static const QStringList smallAnimation{ u"-vf"_s, uR"(scale=min(iw\,600):-1)"_s, u"-pix_fmt"_s,
        u"rgb24"_s, u"-r"_s, u"10"_s };
    // In the order of the raw values. Without a video encoder, the tool chooses the streams.
    // clang-format off
    static const std::array<ConversionDescriptor, 9> rows {{
        // ext      vName             vCodec            aName         aCodec            muxer         vDop         extraCmd
        {"flv"_L1,  "h264"_L1,       "libx264"_L1,    "mp3"_L1,    "libmp3lame"_L1, "flv"_L1,      none,        {}},
        {"mp4"_L1,  "h264"_L1,       "libx264"_L1,    "aac"_L1,    "aac"_L1,        "mp4"_L1,      none,        experimental},
        {"mkv"_L1,  "h264"_L1,       "libx264"_L1,    "aac"_L1,    "aac"_L1,        "matroska"_L1, none,        experimental},
        {"mov"_L1,  "mpeg4"_L1,      "libxvid"_L1,    "aac"_L1,    "aac"_L1,        "mov"_L1,      "-q:v 6"_L1, experimental},
        {"avi"_L1,  "mpeg4"_L1,      "libxvid"_L1,    "mp3"_L1,    "libmp3lame"_L1, "avi"_L1,      "-q:v 6"_L1, {}},
        {"mp3"_L1,  none,            none,            "mp3"_L1,    "libmp3lame"_L1, "mp3"_L1,      none,        {}},
        {"mpg"_L1,  "mpeg2video"_L1, "mpeg2video"_L1, "ac3"_L1,    "ac3"_L1,        "vob"_L1,      "-q:v 6"_L1, {}},
        {"gif"_L1,  "gif"_L1,        none,            none,        none,            "gif"_L1,      none,        smallAnimation},
        {"webm"_L1, "vp8"_L1,        "libvpx"_L1,     "vorbis"_L1, "libvorbis"_L1,  "webm"_L1,     none,        {}},
    }};
    // clang-format on
    return rows.at(static_cast<std::size_t>(hashValue(format)));
}
