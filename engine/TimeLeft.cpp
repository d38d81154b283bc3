// SPDX-License-Identifier: MIT
#include "engine/TimeLeft.h"

#include <cmath>

using namespace std::chrono_literals;

namespace {

/// The speed is that of the last moments, as videos have easy and hard stretches.
constexpr TimeLeft::Duration span = 12s;
constexpr TimeLeft::Duration shortestSpan = 3s;
/// The speeds of the older and the newer half differ by no more than this part.
constexpr double speedTolerance = 0.35;

qint64 rounded(double seconds)
{
    const double step = seconds < 60 ? 5 : seconds < 600 ? 10 : 60;
    return std::llround(std::ceil(seconds / step) * step);
}

}

std::optional<qint64> TimeLeft::at(Duration elapsed, double fraction)
{
    if (!m_samples.empty() && fraction < m_samples.back().fraction)
        m_samples.clear();
    m_samples.push_back({ elapsed, fraction });
    while (m_samples.front().elapsed < elapsed - span)
        m_samples.pop_front();
    const std::optional<qint64> now = estimate();
    const bool isNoise = m_shown && now && *now > *m_shown && *now <= *m_shown * 5 / 4 + 2;
    if (!isNoise)
        m_shown = now;
    return m_shown;
}

std::optional<qint64> TimeLeft::estimate() const
{
    if (m_samples.size() < 5 || m_samples.back().fraction >= 1)
        return std::nullopt;
    const Sample &first = m_samples.front();
    const Sample &middle = m_samples[m_samples.size() / 2];
    const Sample &last = m_samples.back();
    if (last.elapsed - first.elapsed < shortestSpan)
        return std::nullopt;
    const auto remainingSeconds = [&last](const Sample &from, const Sample &to) {
        const double milliseconds = double((to.elapsed - from.elapsed).count());
        return (1 - last.fraction) * milliseconds / (to.fraction - from.fraction) / 1000;
    };
    const double older = remainingSeconds(first, middle);
    const double newer = remainingSeconds(middle, last);
    const double whole = remainingSeconds(first, last);
    const bool steady = std::isfinite(whole) && std::abs(older - newer) <= speedTolerance * whole;
    return steady && whole <= 3600.0 * 100 ? std::optional(rounded(whole)) : std::nullopt;
}
