// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>
#include <deque>
#include <optional>

/// Estimates how long a run will still take. Says nothing until the estimate is steady.
class TimeLeft {
public:
    using Duration = std::chrono::milliseconds;

    /// Notes the fraction of 0 to 1 reached; one that falls starts the estimate anew.
    void add(Duration elapsed, double fraction);
    /// Units: seconds, rounded; absent while it is not steady and at the end.
    [[nodiscard]] std::optional<qint64> estimate() const;

private:
    struct Sample {
        Duration elapsed;
        double fraction;
    };
    std::deque<Sample> m_samples;
};
