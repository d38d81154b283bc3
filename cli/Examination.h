// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "engine/Outcome.h"
#include "support/JSON.h"

#include <QSize>

#include <variant>

class Interruption;

struct VideoDescription {
    JSON info;
    QString duration;
    /// Empty without one.
    QSize cover;
};

/// Waits for the result or an interruption. Thread: main; an event loop runs inside.
[[nodiscard]] std::variant<VideoDescription, Outcome> examined(
    const QString &path, Cover cover, Interruption &interruption);
