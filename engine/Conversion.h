// SPDX-License-Identifier: MIT
#pragma once

#include "engine/ConversionRun.h"

/// What a whole result does to a file at its destination: refuse, rename it, or replace it.
enum class OlderFile { Kept, SetAside, Replaced };

/// One job of the user: checks the destination, stages the result, runs the tool, again for each
/// cause that it knows a way around, looks at the result where it is in doubt, and moves it into
/// place. So a job ends with a true outcome, and an older file is replaced by success alone.
namespace Conversion {

/// Returns at once. The progress object is like that of a single run, and full only when the result
/// is in place. `errorHandler` is posted to the main thread; it gets the message of a short result
/// or a refused destination, and none after a failure.
std::shared_ptr<Progress> start(
    ConversionJob job, OlderFile olderFile, FFMPEG::ConversionErrorHandler errorHandler);

}
