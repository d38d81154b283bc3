// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

#include <QStringList>

#include <functional>
#include <optional>

struct Destination {
    QString path = {};
    QStringList sources = {};
    QStringList otherResults = {};
    bool overwrite = false;
};

/// Why no result may be written there; absent when one may. Links are followed. Thread: any.
[[nodiscard]] std::optional<Outcome> refusalOf(const Destination &destination);
/// Why no result may be written to a folder. Thread: any.
[[nodiscard]] std::optional<Outcome> folderRefusal(const QString &folder);
/// Refuses a destination that is one of the sources, whatever its spelling. Thread: any.
[[nodiscard]] std::optional<Outcome> sourceRefusal(const Destination &destination);

/// Creates the result's file, empty, so that only one of several programs that start together
/// writes it. Refuses when another one was faster. Thread: any.
[[nodiscard]] std::optional<Outcome> createResultFile(const QString &path);

/// One run's sole right to write and to remove the file at a destination. A cancelled run may still
/// be ending its tool when the user starts another one to the same place: the second waits, so that
/// the first does not remove its output. Thread: the run's.
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
