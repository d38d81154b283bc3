// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

struct ConversionDescriptor;

/// Output format: a container with the codecs that go into it.
enum class ConversionFormat : int { flv = 1, mp4, mkv, mov, avi, mp3, mpg, gif, webm };

/// The format with this raw value, if there is one.
[[nodiscard]] constexpr std::optional<ConversionFormat> conversionFormat(int rawValue)
{
    if (rawValue < static_cast<int>(ConversionFormat::flv)
        || rawValue > static_cast<int>(ConversionFormat::webm))
        return std::nullopt;
    return static_cast<ConversionFormat>(rawValue);
}

/// 1 to 9, in the order of the declaration.
[[nodiscard]] constexpr int rawValue(ConversionFormat format) { return static_cast<int>(format); }

/// The ordinal, 0 to 8.
[[nodiscard]] constexpr int hashValue(ConversionFormat format) { return rawValue(format) - 1; }

/// Codec and muxer settings of a format.
/// Thread: any.
[[nodiscard]] ConversionDescriptor conversionDescriptor(ConversionFormat format);
