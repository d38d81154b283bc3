// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QRegularExpression>
#include <QStringList>

#include <optional>

/// Thread: any.
namespace ToolOutput {

/// "  Duration: 00:01:40.00, start: 0.000000, bitrate: 1205 kb/s"; group 1 is the duration.
[[nodiscard]] const QRegularExpression &regexprDuration();
/// "frame=  250 fps=125 size=   512kB time=00:00:10.00 bitrate= 419kbits/s"; group 1 is the
/// position.
[[nodiscard]] const QRegularExpression &regexprProgress();

/// Whole seconds of the first "hours:minutes:seconds" in a text. Errors: a number of seconds beyond
/// 64 bits stops the program.
[[nodiscard]] std::optional<qint64> getFFMpegDuration(const QString &text);
/// The same for a text that the tool printed; absent when it is longer than any of the tool's own
/// times, as a video's texts and names may be.
[[nodiscard]] std::optional<qint64> printedSeconds(const QString &text);
[[nodiscard]] std::optional<qint64> lastReportedPosition(const QString &block);
/// A block of output as text. When the tool cut a character, only its line is lost.
[[nodiscard]] QString decodedBlock(const QByteArray &block);

/// Drops a video's own texts, such as "    title           : Duration: 9:0:0.0, start:", from
/// output that keeps coming. The tool indents them by four spaces. Thread: one at a time.
class OwnLines {
public:
    /// `paths` are the names that the tool was given; what they say is not its word either.
    explicit OwnLines(const QStringList &paths);
    [[nodiscard]] QByteArray in(QByteArray chunk);

private:
    QByteArrayList m_paths;
    // Spaces at the start of the line that the last chunk ended with.
    int m_indent = 0;
    bool m_isIndenting = true;
};

}

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
    // UTF-16 units minus characters of the dropped text: so many at the end stay unsearched.
    qsizetype m_surplus = 0;
    bool m_decided = false;
    std::optional<qint64> m_duration;
};
