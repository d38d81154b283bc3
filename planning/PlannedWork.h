// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"
#include "support/JSON.h"

#include <QSize>

#include <optional>

enum class StreamWork { LeftOut, Copied, Encoded };

/// What a conversion does with picture and sound, read from its argument list. Thread: any.
struct PlannedWork {
    StreamWork picture = StreamWork::LeftOut;
    StreamWork sound = StreamWork::LeftOut;
    /// Units: pixels; absent where the picture keeps its size.
    std::optional<QSize> scaledTo = {};

    /// The output can hold nothing of this video.
    [[nodiscard]] bool isEmpty() const
    {
        return picture == StreamWork::LeftOut && sound == StreamWork::LeftOut;
    }
    /// Takes seconds, whatever the video's length.
    [[nodiscard]] bool isCopy() const
    {
        return !isEmpty() && picture != StreamWork::Encoded && sound != StreamWork::Encoded;
    }
};

[[nodiscard]] PlannedWork plannedWork(const VideoConstraints &entry, const JSON &conversionInfo);

/// About what a result takes. Units: bytes; absent where nobody can say. Thread: any.
[[nodiscard]] std::optional<qint64> expectedSize(
    const VideoConstraints &entry, const JSON &conversionInfo);
