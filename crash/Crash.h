// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Leaves a report when the program crashes: the reason, the stack, the program's version and the
/// system, and nothing else. The process then ends as it would have without a report, with the same
/// signal.
namespace CrashReporter {

/// Watches for crashes, uncaught exceptions and trap stops from now on. Needs no application
/// object. Thread: the main one, before others run. A stack that overflows leaves a report on this
/// thread only. Errors: a folder that can't be made means no reports.
void start();

/// Where the reports lie, readable by the user alone.
[[nodiscard]] QString folder();

}
