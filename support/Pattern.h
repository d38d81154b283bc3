// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QString>

/// First matches of regular expressions in text. Empty text is the answer to everything that is not
/// there. Thread: any.
namespace Pattern {

/// Anchors match at every line, the dot matches line ends.
inline constexpr QRegularExpression::PatternOptions lineOptions
    = QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption;

/// Compiles a pattern in which every Unicode line end counts as one, a lone carriage return too:
/// the tools end their status lines with it. The result may be invalid.
[[nodiscard]] QRegularExpression compiled(const QString &pattern,
    QRegularExpression::PatternOptions options = QRegularExpression::NoPatternOption);

/// The first `count` units of a text as a range to search. Without half a surrogate pair at its
/// end, for which the expression engine would refuse all of it.
[[nodiscard]] QStringView searchRange(QStringView text, qsizetype count);

/// Group `index` of the first match; the pattern is compiled with lineOptions.
/// Only as many UTF-16 units are searched as the text has characters (grapheme clusters).
[[nodiscard]] QString matchPattern(const QString &text, const QString &pattern, int index);
/// The same with a compiled expression.
[[nodiscard]] QString matchRegex(
    const QString &text, const QRegularExpression &expression, int index);
/// Group `subRangeIndex` of a match that the caller holds.
[[nodiscard]] QString substringFromCheckingResult(
    const QRegularExpressionMatch &match, int subRangeIndex);

}
