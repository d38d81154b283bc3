// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A duration split for display. Units: hours are all hours, also those of days. Thread: any.
class DurationInfo {
public:
    explicit DurationInfo(qint64 seconds)
        : m_all(seconds)
    {
    }

    [[nodiscard]] qint64 days() const { return m_all / 86400; }
    [[nodiscard]] qint64 hours() const { return m_all / 3600; }
    [[nodiscard]] qint64 minutes() const { return m_all % 3600 / 60; }
    [[nodiscard]] qint64 seconds() const { return m_all % 60; }

    /// Short text in the user's language, such as "1h 2m 3s".
    [[nodiscard]] QString toString() const;

    bool operator==(const DurationInfo &) const = default;

private:
    qint64 m_all;
};
