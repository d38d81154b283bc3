// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

#include <optional>

/// The tools in the application's bundle.
enum class Tool { Ffmpeg, Ffprobe };

/// Thread: any.
[[nodiscard]] QString toolPath(Tool tool);
/// The outcome of work whose tool is missing or can't be run.
[[nodiscard]] Outcome missingTool(Tool tool);
/// Absent when the tool can be run.
[[nodiscard]] std::optional<Outcome> toolRefusal(Tool tool);
