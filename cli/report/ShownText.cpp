// SPDX-License-Identifier: MIT
#include "cli/report/ShownText.h"

#include <QRegularExpression>

#include <algorithm>
#include <cwchar>

using namespace Qt::StringLiterals;

QString printable(const QString &text)
{
    // Bidirectional overrides go too; joiners and plain direction marks stay.
    static const QRegularExpression obeyed(
        uR"([\p{Cc}\p{Zl}\p{Zp}\x{202A}-\x{202E}\x{2066}-\x{2069}])"_s);
    return QString(text).replace(obeyed, u"?"_s);
}

int columnsOf(const QString &text)
{
    int columns = 0;
    for (const char32_t character : text.toStdU32String())
        columns += std::max(0, ::wcwidth(static_cast<wchar_t>(character)));
    return columns;
}

QString leftJustified(const QString &text, int columns)
{
    return text + QString(std::max(0, columns - columnsOf(text)), u' ');
}

QString elided(const QString &text, int columns)
{
    const std::u32string all = text.toStdU32String();
    QString shown = text;
    for (std::size_t kept = all.size(); columnsOf(shown) > columns && kept > 0;) {
        --kept;
        const std::size_t head = kept / 2;
        shown = QString::fromStdU32String(all.substr(0, head)) + u'…'
            + QString::fromStdU32String(all.substr(all.size() - (kept - head)));
    }
    return shown;
}
