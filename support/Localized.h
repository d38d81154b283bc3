// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

/// A text of the string table. Written with QT_TRANSLATE_NOOP3("Localizable", key, comment), so
/// that the translators' tools find it; a third member gives the English text where the key is not
/// that text itself.
struct LocalizedText {
    const char *key;
    const char *comment;
    const char *fallback = nullptr;
};

/// The text in the user's language, else its English default.
/// Thread: any.
[[nodiscard]] QString localized(const LocalizedText &text);

/// Language code of the user's locale, such as "de"; absent for a locale without a language.
/// Thread: any.
[[nodiscard]] std::optional<QString> languageCode();
