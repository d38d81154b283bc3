// SPDX-License-Identifier: MIT
#include "support/Pattern.h"

#include "support/Text.h"

using namespace Qt::StringLiterals;

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
