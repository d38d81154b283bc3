// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>
#include <deque>
#include <optional>

/// How long work will still take. It counts upward only when the work has become slower.
class TimeLeft {
public:
    using Duration = std::chrono::milliseconds;

    /// Notes the fraction of 0 to 1 that is reached; one that falls starts anew. The answer is in
    /// seconds, rounded; absent while the speed is not steady, and at the end.
    std::optional<qint64> at(Duration elapsed, double fraction);

private:
    [[nodiscard]] std::optional<qint64> estimate() const;

    struct Sample {
        Duration elapsed;
        double fraction;
    };
    std::deque<Sample> m_samples;
    std::optional<qint64> m_shown;
};
