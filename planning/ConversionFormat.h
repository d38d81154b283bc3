// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

struct ConversionDescriptor;

enum class ConversionFormat : int { flv = 1, mp4, mkv, mov, avi, mp3, mpg, gif, webm };

[[nodiscard]] constexpr std::optional<ConversionFormat> conversionFormat(int rawValue)
{
    if (rawValue < 1 || rawValue > 9)
        return std::nullopt;
    return static_cast<ConversionFormat>(rawValue);
}

[[nodiscard]] constexpr int rawValue(ConversionFormat format) { return static_cast<int>(format); }

[[nodiscard]] constexpr int hashValue(ConversionFormat format) { return rawValue(format) - 1; }

[[nodiscard]] ConversionDescriptor conversionDescriptor(ConversionFormat format);
