// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <optional>

/// How far a conversion is.
/// Units: seconds of media; `total` is not positive while the length is unknown.
struct ProgressSample {
    qint64 completed = 0;
    qint64 total = -1;
    std::chrono::milliseconds elapsed{};

    /// 0 to 100; absent while the length is unknown.
    [[nodiscard]] std::optional<int> percent() const;
    /// Seconds of media for each second; absent in the first second.
    [[nodiscard]] std::optional<double> speed() const;
    [[nodiscard]] std::optional<qint64> secondsLeft() const;
};

/// Percent, speed and time left, as far as they are known; else the time since the start.
[[nodiscard]] QString progressText(const ProgressSample &sample);
/// The same after the video's name and a bar, which moves back and forth while the length is
/// unknown.
[[nodiscard]] QString progressBar(const QString &video, const ProgressSample &sample, int columns);
