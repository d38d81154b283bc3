// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <variant>
#include <vector>

/// A text of the string table, written with QT_TRANSLATE_NOOP3("Localizable", key, comment).
struct LocalizedText {
    const char *key;
    const char *comment;
};

/// The text in the user's language, else its English default. Thread: any.
[[nodiscard]] QString localized(const LocalizedText &text);
/// With the English text of a key that is not that text itself.
[[nodiscard]] QString localized(const LocalizedText &text, const char *english);

using FormatArgument = std::variant<qint64, QString>;

/// Fills %d, %i, %u, %s and %@ of a format, also with flags, widths, length letters and positions
/// as in %2$d. Numbers get the digits of the user's locale. A directive without an argument prints
/// nothing; an unknown one stays. Thread: any.
[[nodiscard]] QString formatted(
    const QString &format, const std::vector<FormatArgument> &arguments);
[[nodiscard]] QString formatted(
    const LocalizedText &format, const std::vector<FormatArgument> &arguments);

/// Such as "de"; absent for a locale without a language. Thread: any.
[[nodiscard]] std::optional<QString> languageCode();
