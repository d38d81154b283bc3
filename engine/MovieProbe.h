// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "support/DurationInfo.h"

#include <variant>

/// What the description of a video says about converting it. Pure functions.
/// Thread: any.
namespace MovieProbe {

/// Length of the video in whole seconds, or why it is refused. `sizeOnDisk` in bytes: a video that
/// is still being written, or that the tool read only in part, differs from it. Errors: a length
/// that is not finite or beyond 64 bits stops the program.
[[nodiscard]] std::variant<qint64, ProbeRefusal> checked(const JSON &info, quint64 sizeOnDisk);
/// Where in a video its cover is taken, as the tool's seek offset.
[[nodiscard]] QString coverOffset(const DurationInfo &duration);
/// Bucket of the video's length in minutes, as usage events name it.
[[nodiscard]] QString lengthBucket(qint64 seconds);

}
