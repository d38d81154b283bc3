// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

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

/// Why something was not done, in one sentence for the user.
struct Failure {
    ExitCode code;
    QString message;
};
