// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/CommandLine.h"
#include "engine/FFMPEG.h"

class Interruption;

/// The commands. Thread: main; event loops run inside.

[[nodiscard]] ExitCode listFormats(const CommandLine &line, Interruption &interruption);
[[nodiscard]] ExitCode probeVideos(const CommandLine &line, Interruption &interruption);
[[nodiscard]] ExitCode planConversions(const CommandLine &line, Interruption &interruption);
[[nodiscard]] ExitCode convertVideos(const CommandLine &line, Interruption &interruption);

struct VideoDescription {
    Outcome refusal = {};
    JSON info = {};
    QString duration = {};
    /// Empty without one.
    QSize cover = {};
};

/// Waits for the result or an interruption. Thread: main; an event loop runs inside.
[[nodiscard]] VideoDescription examined(
    const QString &path, Cover cover, Interruption &interruption);
