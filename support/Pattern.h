// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QString>

/// First matches of regular expressions; empty text where nothing matches. Thread: any.
namespace Pattern {

/// Anchors match at every line, the dot matches line ends.
inline constexpr QRegularExpression::PatternOptions lineOptions
    = QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption;

/// Every Unicode line end counts as one, also the carriage return that ends the tools' status
/// lines. The result may be invalid.
[[nodiscard]] QRegularExpression compiled(const QString &pattern,
    QRegularExpression::PatternOptions options = QRegularExpression::NoPatternOption);

/// The first `count` units, without half a surrogate pair at the end, which would not match at all.
[[nodiscard]] QStringView searchRange(QStringView text, qsizetype count);

/// Group `index` of the first match. Only as many UTF-16 units are searched as the text has
/// characters (grapheme clusters).
[[nodiscard]] QString matchPattern(const QString &text, const QString &pattern, int index);
[[nodiscard]] QString matchRegex(
    const QString &text, const QRegularExpression &expression, int index);
[[nodiscard]] QString substringFromCheckingResult(
    const QRegularExpressionMatch &match, int subRangeIndex);

}
