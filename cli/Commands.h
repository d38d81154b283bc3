// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/CommandLine.h"

class Interruption;

/// The commands. Thread: main; event loops run inside.

[[nodiscard]] ExitCode listFormats(const CommandLine &line, Interruption &interruption);
[[nodiscard]] ExitCode probeVideos(const CommandLine &line, Interruption &interruption);
[[nodiscard]] ExitCode planConversions(const CommandLine &line, Interruption &interruption);
[[nodiscard]] ExitCode convertVideos(const CommandLine &line, Interruption &interruption);
