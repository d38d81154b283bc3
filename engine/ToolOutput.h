// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QStringList>

#include <optional>

/// Reads what the tools print.
/// Thread: any.
namespace ToolOutput {

/// "  Duration: 00:01:40.00, start: 0.000000, bitrate: 1205 kb/s"; group 1 is the duration.
[[nodiscard]] const QRegularExpression &regexprDuration();
/// "frame=  250 fps=125 size=   512kB time=00:00:10.00 bitrate= 419.4kbits/s speed=5x"; group 1 is
/// the position.
[[nodiscard]] const QRegularExpression &regexprProgress();

/// Whole seconds of the first "hours:minutes:seconds" in a text; the fraction is dropped. Absent
/// without one. Errors: a number of seconds beyond 64 bits stops the program.
[[nodiscard]] std::optional<qint64> getFFMpegDuration(const QString &text);
/// Position in the last progress report of a block, in seconds.
[[nodiscard]] std::optional<qint64> lastReportedPosition(const QString &block);
/// The tool reports that it could not write the end of its result, on a full disk for example; some
/// versions still end with status 0. The names of the files are not taken for the tool's words.
[[nodiscard]] bool reportsLostOutput(const QByteArray &output, const QStringList &paths);
/// A block of output as text. When it can't be decoded as a whole, because the tool cut a tag in
/// the middle of a character, only the broken lines are lost.
[[nodiscard]] QString decodedBlock(const QByteArray &block);

}
