// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

/// A time left as it is shown: it never counts upward unless the work has really become slower.
/// Units: seconds.
class SteadyTime {
public:
    [[nodiscard]] std::optional<qint64> shown(const std::optional<qint64> &estimate)
    {
        const bool isNoise
            = m_shown && estimate && *estimate > *m_shown && *estimate <= *m_shown * 5 / 4 + 2;
        if (!isNoise)
            m_shown = estimate;
        return m_shown;
    }

private:
    std::optional<qint64> m_shown;
};
