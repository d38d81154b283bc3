// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Sole right of one run to write, and to remove, the file at a destination. A run that was
/// cancelled may still be ending its tool when the user starts another to the same place: the
/// second waits, so that the first does not remove its output. Thread: the run's.
class DestinationClaim {
public:
    /// Waits until no other claim stands, or `givesUp` answers true (asked several times a second).
    DestinationClaim(const QString &path, const std::function<bool()> &givesUp);
    ~DestinationClaim();
    Q_DISABLE_COPY_MOVE(DestinationClaim)

    [[nodiscard]] bool isHeld() const { return m_held; }

private:
    QString m_path;
    bool m_held = false;
};
