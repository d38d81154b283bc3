// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Conversions that never report an error: each failure gives empty text or 0. Units: "length"
/// counts UTF-16 units, "characters" are grapheme clusters. Thread: any.
namespace Text {

[[nodiscard]] qint64 length(QStringView text);
[[nodiscard]] qsizetype characterCount(QStringView text);
/// A text of more than `count` UTF-16 units is cut to `count` - 1 characters and an ellipsis.
[[nodiscard]] QString max(const QString &text, int count);
/// A decimal number with nothing else around it; 0 for everything else.
[[nodiscard]] qint64 asInt(QStringView text);
[[nodiscard]] qint64 asInt64(QStringView text);
/// The bytes as UTF-8, else as ASCII, else empty text.
[[nodiscard]] QString stringValue(const QByteArray &bytes);

}
