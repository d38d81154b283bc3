// SPDX-License-Identifier: MIT
#include "support/Text.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}

// Position behind the first `count` characters; the text's end when it has fewer.
qsizetype endOfCharacters(QStringView text, int count)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    for (int i = 0; i < count; ++i) {
        if (finder.toNextBoundary() < 0)
            return text.size();
    }
    return finder.position();
}

}

namespace Text {

qint64 length(QStringView text) { return text.size(); }

qsizetype characterCount(QStringView text)
{
    // The boundary finder is slow, and nearly all tool output is plain; only "\r\n" joins two ASCII
    // units in one character.
    if (isAscii(text))
        return text.size() - text.count(u"\r\n");
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

QString max(const QString &text, int count)
{
    Q_ASSERT(count > 0);
    if (text.size() <= count || endOfCharacters(text, count) == text.size())
        return text;
    return text.first(endOfCharacters(text, count - 1)) + QChar(u'…');
}

qint64 asInt(QStringView text)
{
    // White space and null characters around a number do not belong to it.
    const auto isPart = [](QChar c) { return c.isDigit() || c == u'+' || c == u'-'; };
    return std::ranges::all_of(text, isPart) ? text.toLongLong() : 0;
}

qint64 asInt64(QStringView text) { return asInt(text); }

QString stringValue(const QByteArray &bytes)
{
    // Bytes that are no UTF-8 hold one above 0x7F, so decoding them as ASCII fails as well.
    QStringDecoder decoder(QStringDecoder::Utf8,
        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString() : text;
}

}
