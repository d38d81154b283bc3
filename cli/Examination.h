// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitCode.h"
#include "engine/FFMPEG.h"
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

/// The path, made absolute: the tools take a relative one that begins with a dash for an option,
/// and one with a colon for a protocol. "//" and "/./" become "/"; a ".." may lead through a link
/// and stays.
[[nodiscard]] QString absolutePath(const QString &path);

/// Examines the video at an absolute path and waits for the result; Cancelled when the program is
/// interrupted. Thread: the main thread; an event loop runs inside.
[[nodiscard]] std::variant<VideoDescription, Failure> examined(
    const QString &path, Cover cover, Interruption &interruption);

/// What an interrupted command ends with.
[[nodiscard]] Failure cancelledFailure();
