// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Text measures and conversions that never report an error: each failure gives empty text or 0.
/// Units: "length" counts UTF-16 units, "characters" are grapheme clusters.
/// Thread: any.
namespace Text {

/// Number of UTF-16 units.
[[nodiscard]] qint64 length(QStringView text);
/// Number of characters.
[[nodiscard]] qsizetype characterCount(QStringView text);
/// The text, or when it has more than `count` UTF-16 units its first `count` - 1 characters and an
/// ellipsis. A text of at most `count` characters is returned whole. `count` is at least 1.
[[nodiscard]] QString max(const QString &text, int count);
/// A decimal number with at most one sign and nothing else around it; 0 for everything else, also
/// beyond 64 bits.
[[nodiscard]] qint64 asInt(QStringView text);
[[nodiscard]] qint64 asInt64(QStringView text);
/// The bytes as UTF-8, else as ASCII, else empty text.
[[nodiscard]] QString stringValue(const QByteArray &bytes);

}
