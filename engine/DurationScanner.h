// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Finds the "Duration:" line in output that keeps growing. Equals a search over the whole text
/// after each block, but searches and keeps no line twice. Thread: one at a time.
class DurationScanner {
public:
    /// Takes the next block of output.
    void append(const QString &block);
    /// The length in seconds, once it is known.
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
