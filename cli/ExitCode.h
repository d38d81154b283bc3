// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

#include <array>

/// How the program ends. A cancelled program ends with 128 and the number of the signal instead.
enum class ExitCode : int {
    Done = 0,
    ConversionFailed = 1,
    Usage = 2,
    InputRefused = 3,
    DestinationRefused = 4,
    ToolsMissing = 5,
    Cancelled = 128,
};

[[nodiscard]] constexpr ExitCode exitCodeOf(OutcomeKind kind)
{
    using enum ExitCode;
    // In the order of the kinds.
    constexpr std::array codes{ Done, InputRefused, DestinationRefused, ToolsMissing,
        ConversionFailed, ConversionFailed, Cancelled };
    return codes.at(static_cast<std::size_t>(kind));
}
