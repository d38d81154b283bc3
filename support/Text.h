// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QStringList>

/// Conversions that never report an error: each failure gives empty text or 0. Units: "length"
/// counts UTF-16 units, "characters" are grapheme clusters. Thread: any.
namespace Text {

[[nodiscard]] inline qint64 length(QStringView text) { return text.size(); }
[[nodiscard]] qsizetype characterCount(QStringView text);
/// A text of more than `count` UTF-16 units is cut to `count` - 1 characters and an ellipsis.
[[nodiscard]] QString max(const QString &text, int count);
/// A decimal number with nothing else around it; 0 for everything else.
[[nodiscard]] qint64 asInt(QStringView text);
[[nodiscard]] inline qint64 asInt64(QStringView text) { return asInt(text); }
/// The bytes as UTF-8, else as ASCII, else empty text.
[[nodiscard]] QString stringValue(const QByteArray &bytes);
/// Words as a shell's user would have to type them.
[[nodiscard]] QString shellQuoted(QStringList words);

}

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

/// Group `index` of the first match within as many UTF-16 units as the text has characters.
[[nodiscard]] QString matchPattern(const QString &text, const QString &pattern, int index);
[[nodiscard]] QString matchRegex(
    const QString &text, const QRegularExpression &expression, int index);
[[nodiscard]] QString substringFromCheckingResult(
    const QRegularExpressionMatch &match, int subRangeIndex);

}
