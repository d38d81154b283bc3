// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Leaves a report when the program crashes: time, reason, an exception's type, stack, versions and
/// system, nothing else. The process then ends with the same signal as without a report.
namespace CrashReporter {

/// Watches for crashes, uncaught exceptions and trap stops. A stack that overflows leaves a report
/// on this thread only. Thread: main, before others run. Errors: no folder, no reports.
void start();

/// Where the reports lie, readable by the user alone.
[[nodiscard]] QString folder();

}
