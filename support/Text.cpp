// SPDX-License-Identifier: MIT
#include "support/Text.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Text {

qsizetype characterCount(QStringView text)
{
    // The boundary finder is slow, and of ASCII only "\r\n" makes one character of two units.
    if (std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; }))
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
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int i = 1; i < count; ++i)
        finder.toNextBoundary();
    const qsizetype kept = finder.position();
    const qsizetype next = finder.toNextBoundary(); // -1 behind the end
    const bool fits = text.size() <= count || next < 0 || next == text.size();
    return fits ? text : text.first(kept) + QChar(u'…');
}

qint64 asInt(QStringView text)
{
    // White space and null characters around a number do not belong to it.
    const auto isPart = [](QChar c) { return c.isDigit() || c == u'+' || c == u'-'; };
    return std::ranges::all_of(text, isPart) ? text.toLongLong() : 0;
}

QString stringValue(const QByteArray &bytes)
{
    // Bytes that are no UTF-8 hold one above 0x7F, so decoding them as ASCII fails as well.
    QStringDecoder decoder(QStringDecoder::Utf8,
        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString() : text;
}

QString shellQuoted(QStringList words)
{
    static const QRegularExpression harmless(uR"(\A[A-Za-z0-9_@%+=:,./-]+\z)"_s);
    for (QString &word : words) {
        if (!harmless.match(word).hasMatch())
            word = u'\'' + word.replace(u'\'', uR"('\'')"_s) + u'\'';
    }
    return words.join(u' ');
}

}

namespace Pattern {

QRegularExpression compiled(const QString &pattern, QRegularExpression::PatternOptions options)
{
    return QRegularExpression(u"(*ANY)"_s + pattern, options);
}

QStringView searchRange(QStringView text, qsizetype count)
{
    const bool cutsPair = count > 0 && text[count - 1].isHighSurrogate();
    return text.first(cutsPair ? count - 1 : count);
}

QString matchPattern(const QString &text, const QString &pattern, int index)
{
    return matchRegex(text, compiled(pattern, lineOptions), index);
}

QString matchRegex(const QString &text, const QRegularExpression &expression, int index)
{
    if (!expression.isValid())
        return {};
    const QStringView searched = searchRange(text, Text::characterCount(text));
    return substringFromCheckingResult(expression.match(searched), index);
}

QString substringFromCheckingResult(const QRegularExpressionMatch &match, int subRangeIndex)
{
    return match.captured(subRangeIndex);
}

}
