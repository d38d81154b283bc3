// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"
#include "support/DurationInfo.h"
#include "support/JSON.h"

#include <optional>
#include <variant>

/// What a file and its description say about converting it.
/// Thread: any.
namespace MovieProbe {

/// Why a file is refused before a tool reads it, such as a FIFO, which would block the tool.
[[nodiscard]] std::optional<Outcome> fileRefusal(const QString &path);
/// Length of the video in whole seconds, or why it is refused. `sizeOnDisk` in bytes: a video that
/// is still being written, or that the tool read only in part, differs from it. Errors: a length
/// that is not finite or beyond 64 bits stops the program.
[[nodiscard]] std::variant<qint64, Outcome> checked(const JSON &info, quint64 sizeOnDisk);
/// Where in a video its cover is taken, as the tool's seek offset.
[[nodiscard]] QString coverOffset(const DurationInfo &duration);
/// Bucket of the video's length in minutes, as usage events name it.
[[nodiscard]] QString lengthBucket(qint64 seconds);

}
