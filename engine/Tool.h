// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

enum class Tool { Ffmpeg, Ffprobe };

[[nodiscard]] QString toolPath(Tool tool);
[[nodiscard]] Outcome missingTool(Tool tool);
