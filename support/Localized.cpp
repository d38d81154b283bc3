// SPDX-License-Identifier: MIT
#include "support/Localized.h"

#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const FormatArgument &argument)
{
    if (const auto *text = std::get_if<QString>(&argument))
        return *text;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(std::get<qint64>(argument));
}

}

QString localized(const LocalizedText &text) { return localized(text, text.key); }

QString localized(const LocalizedText &text, const char *english)
{
    const QString translation = QCoreApplication::translate("Localizable", text.key, text.comment);
    return translation == QString::fromUtf8(text.key) ? QString::fromUtf8(english) : translation;
}

QString formatted(const QString &format, const std::vector<FormatArgument> &arguments)
{
    static const QRegularExpression directive(
        uR"(%(?:(%)|(?:(\d{1,4})\$)?[-+ 0#']*\d{0,4}(?:\.\d{0,4})?(?:hh|h|ll|l|q|j|z|t)?[diu@s]))"_s);
    QString result;
    qsizetype copied = 0;
    std::size_t next = 0;
    for (const QRegularExpressionMatch &match : directive.globalMatch(format)) {
        result += QStringView(format).mid(copied, match.capturedStart() - copied);
        copied = match.capturedEnd();
        if (match.hasCaptured(1)) {
            result += u'%';
            continue;
        }
        const std::size_t index
            = match.hasCaptured(2) ? match.captured(2).toUInt() - std::size_t{ 1 } : next++;
        if (index < arguments.size())
            result += textOf(arguments[index]);
    }
    result += QStringView(format).mid(copied);
    return result;
}

QString formatted(const LocalizedText &format, const std::vector<FormatArgument> &arguments)
{
    return formatted(localized(format), arguments);
}

std::optional<QString> languageCode()
{
    const QLocale locale;
    if (locale.language() == QLocale::C)
        return std::nullopt;
    return QLocale::languageToCode(locale.language());
}
