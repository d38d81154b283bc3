// SPDX-License-Identifier: MIT
#include "support/Localized.h"

#include <QLocale>

QString localized(const LocalizedText &text)
{
    const QString key = QString::fromUtf8(text.key);
    const QString translation = QCoreApplication::translate("Localizable", text.key, text.comment);
    return text.fallback && translation == key ? QString::fromUtf8(text.fallback) : translation;
}

std::optional<QString> languageCode()
{
    const QLocale locale;
    if (locale.language() == QLocale::C)
        return std::nullopt;
    return QLocale::languageToCode(locale.language());
}
