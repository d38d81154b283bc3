// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Finds the "Duration:" line in output that keeps growing, as a search over all of it would, but
/// searches no line twice. Thread: one at a time.
class DurationScanner {
public:
    void append(const QString &block);
    [[nodiscard]] std::optional<qint64> duration();

private:
    void dropSearchedLines(qsizetype searchedEnd);

    // The rest of the text in which a match may begin; starts at a line's start.
    QString m_tail;
    // UTF-16 units minus characters of the dropped text: that many units at the end stay
    // unsearched.
    qsizetype m_surplus = 0;
    bool m_searched = false;
    bool m_decided = false;
    std::optional<qint64> m_duration;
};
