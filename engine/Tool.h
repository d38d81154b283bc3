// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

#include <optional>

enum class Tool { Ffmpeg, Ffprobe };

[[nodiscard]] QString toolPath(Tool tool);
[[nodiscard]] Outcome missingTool(Tool tool);
[[nodiscard]] std::optional<Outcome> toolRefusal(Tool tool);
