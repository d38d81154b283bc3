// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <deque>
#include <optional>

/// Estimates how long a run will still take. Says nothing until the estimate is steady.
class TimeLeft {
public:
    using Duration = std::chrono::milliseconds;

    /// Notes the fraction of 0 to 1 reached; one that falls starts the estimate anew.
    void add(Duration elapsed, double fraction);
    /// Rounded as far as it can be relied on; absent while it is not steady and at the end.
    [[nodiscard]] std::optional<std::chrono::seconds> estimate() const;

private:
    struct Sample {
        Duration elapsed;
        double fraction;
    };
    [[nodiscard]] double remainingMilliseconds(const Sample &from, const Sample &to) const;

    std::deque<Sample> m_samples;
};
