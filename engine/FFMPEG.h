// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"
#include "support/JSON.h"

#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class Progress;
struct Outcome;

/// Whether a probe takes a cover picture, which costs a second run of a tool.
enum class Cover { Taken, LeftOut };

/// Examines and converts videos, each time by one run of a tool of the bundle. Thread: main, the
/// handlers too; every call returns at once.
class FFMPEG {
public:
    /// `cover` is a null image when no frame could be taken; `duration` is the text to show.
    using InfoHandler
        = std::function<void(const JSON &json, const QImage &cover, const QString &duration)>;
    /// `errmsg` is meant for the user; absent when the tool failed.
    using ConversionErrorHandler = std::function<void(const std::optional<QString> &errmsg)>;

    FFMPEG() = delete;

    /// Describes a video. Exactly one of the handlers runs.
    static void collectMovieInfo(const QString &path, std::function<void()> errorHandler,
        const InfoHandler &completionHandler);
    /// The same, with the reason of a refusal. Only the cover needs `ffmpeg`.
    static void collectMovieInfo(const QString &path,
        const std::function<void(const Outcome &)> &errorHandler,
        const InfoHandler &completionHandler, Cover cover = Cover::Taken);

    /// Converts a probed video. Cancelling the progress object stops the tool and removes the
    /// partial output. Errors: `errorHandler` runs at most once; a tool that can't be launched
    /// cancels the progress object instead. A refused destination is left alone.
    static std::shared_ptr<Progress> convertFile(const QString &path, const QString &destPath,
        const VideoConstraints &constraints, const JSON &conversionInfo,
        ConversionErrorHandler errorHandler);
    /// Ends probes and waits for conversions. Called once, before the program ends.
    static void shutDown();
};
