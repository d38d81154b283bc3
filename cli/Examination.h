// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "engine/Outcome.h"
#include "support/JSON.h"

#include <QSize>

#include <optional>
#include <variant>

class Interruption;

/// What is known of a video.
struct VideoDescription {
    JSON info;
    /// Display text of the length.
    QString duration;
    /// Size of the cover picture; absent when there is none.
    std::optional<QSize> cover;
};

/// Examines the video at an absolute path and waits for the result; cancelled when the program is
/// interrupted. Thread: the main thread; an event loop runs inside.
[[nodiscard]] std::variant<VideoDescription, Outcome> examined(
    const QString &path, Cover cover, Interruption &interruption);
