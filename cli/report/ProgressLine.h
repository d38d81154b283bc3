// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <optional>

/// Units: seconds, of media but for `left`; `total` is not positive while the length is unknown.
struct ProgressSample {
    qint64 completed = 0;
    qint64 total = -1;
    std::chrono::milliseconds elapsed{};
    std::optional<qint64> left = {};

    [[nodiscard]] std::optional<int> percent() const;
    [[nodiscard]] std::optional<double> speed() const;
};

/// Percent, speed and time left, as far as they are known; else the time since the start.
[[nodiscard]] QString progressText(const ProgressSample &sample);
/// The same after a name and a bar, which moves back and forth while the length is unknown.
[[nodiscard]] QString progressBar(const QString &video, const ProgressSample &sample, int columns);
