// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

/// A text of the string table, written with QT_TRANSLATE_NOOP3("Localizable", key, comment) for the
/// translators' tools.
struct LocalizedText {
    const char *key;
    const char *comment;
};

/// The text in the user's language, else its English default. Thread: any.
[[nodiscard]] QString localized(const LocalizedText &text);
/// With the English text of a key that is not that text itself.
[[nodiscard]] QString localized(const LocalizedText &text, const char *english);

/// Such as "de"; absent for a locale without a language. Thread: any.
[[nodiscard]] std::optional<QString> languageCode();
