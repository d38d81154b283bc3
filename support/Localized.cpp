// SPDX-License-Identifier: MIT
#include "support/Localized.h"

#include <QLocale>

QString localized(const LocalizedText &text) { return localized(text, text.key); }

QString localized(const LocalizedText &text, const char *english)
{
    const QString translation = QCoreApplication::translate("Localizable", text.key, text.comment);
    return translation == QString::fromUtf8(text.key) ? QString::fromUtf8(english) : translation;
}

std::optional<QString> languageCode()
{
    const QLocale locale;
    if (locale.language() == QLocale::C)
        return std::nullopt;
    return QLocale::languageToCode(locale.language());
}
