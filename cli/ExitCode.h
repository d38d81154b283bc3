// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

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
    switch (kind) {
    case OutcomeKind::Done:
        return ExitCode::Done;
    case OutcomeKind::InputRefused:
        return ExitCode::InputRefused;
    case OutcomeKind::DestinationRefused:
        return ExitCode::DestinationRefused;
    case OutcomeKind::ToolMissing:
        return ExitCode::ToolsMissing;
    case OutcomeKind::Failed:
    case OutcomeKind::Incomplete:
        return ExitCode::ConversionFailed;
    case OutcomeKind::Cancelled:
        return ExitCode::Cancelled;
    }
    return ExitCode::ConversionFailed;
}
