// SPDX-License-Identifier: MIT
#include "engine/MovieProbe.h"
#include "engine/Remedy.h"
#include "engine/Verdict.h"
#include "planning/ConversionDescriptor.h"

#include <cmath>

using namespace Qt::StringLiterals;

/// A media information, all the way from the probe's bytes to a second try's argument list.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const JSON info
        = MovieProbe::description({ reinterpret_cast<const char *>(data), qsizetype(size) });
    const JSON format = info[u"format"_s];
    // A length beyond 64 bits stops the program on purpose; the tool prints none above 2^63
    // microseconds.
    if (std::abs(format[u"duration"_s].stringValue().toDouble()) < 1e13) {
        const auto seconds
            = MovieProbe::checked(info, format[u"size"_s].stringValue().toULongLong());
        if (const auto *length = std::get_if<qint64>(&seconds))
            static_cast<void>(MovieProbe::coverOffset(DurationInfo(*length)));
    }
    for (int number = 1; number <= 9; ++number) {
        const auto bound = VideoDimensionsConstraints::maximum({ .width = 960, .height = 640 });
        const ConversionJob job{ u"/a"_s, u"/b"_s,
            { bound, {}, static_cast<ConversionFormat>(number), {} }, info };
        static_cast<void>(judged({ 1, 1 }, expectedOf(job)));
        static_cast<void>(takesCoverForPicture(job));
        for (const Remedy remedy : { Remedy::None, Remedy::CoverLeftOut, Remedy::SizeMadeEven,
                 Remedy::SoundEncoded, Remedy::PictureEncoded })
            static_cast<void>(conversionArguments(remedied(job, remedy)));
    }
    return 0;
}
