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
    if (columnsOf(text) <= columns)
        return text;
    std::u32string head = text.toStdU32String();
    std::u32string tail = head.substr(head.size() / 2);
    head.resize(head.size() / 2);
    const auto joined
        = [&] { return QString::fromStdU32String(head) + u'…' + QString::fromStdU32String(tail); };
    while (columnsOf(joined()) > columns && !tail.empty()) {
        if (head.size() >= tail.size())
            head.pop_back();
        else
            tail.erase(0, 1);
    }
    return joined();
}
