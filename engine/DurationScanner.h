// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Looks for the "Duration:" line in output that keeps growing. Gives what a search over the whole
/// text after each block would give, at a cost that does not grow with the text: what was searched
/// is not searched again, nor kept. Thread: one at a time.
class DurationScanner {
public:
    /// Takes the next block of output.
    void append(const QString &block);
    /// The length in seconds as far as the text tells it.
    [[nodiscard]] std::optional<qint64> duration();

private:
    void dropSearchedLines(qsizetype searchedEnd);

    // The tail of the text that a match may still begin in; it begins at a line's start.
    QString m_tail;
    // UTF-16 units beyond the characters of what was dropped: so many units at the text's end are
    // not searched.
    qsizetype m_surplus = 0;
    bool m_searched = false;
    bool m_decided = false;
    std::optional<qint64> m_duration;
};
