// SPDX-License-Identifier: MIT
#include "support/Pattern.h"

#include "support/Text.h"

using namespace Qt::StringLiterals;

namespace Pattern {

QRegularExpression compiled(const QString &pattern, QRegularExpression::PatternOptions options)
{
    return QRegularExpression(u"(*ANY)"_s + pattern, options);
}

QString matchPattern(const QString &text, const QString &pattern, int index)
{
    return matchRegex(text, compiled(pattern, lineOptions), index);
}

QString matchRegex(const QString &text, const QRegularExpression &expression, int index)
{
    if (!expression.isValid())
        return {};
    QStringView searched = QStringView(text).first(Text::characterCount(text));
    // Half a surrogate pair at the end would make the expression engine refuse the whole text.
    if (!searched.empty() && searched.back().isHighSurrogate())
        searched.chop(1);
    return substringFromCheckingResult(expression.match(searched), index);
}

QString substringFromCheckingResult(const QRegularExpressionMatch &match, int subRangeIndex)
{
    return match.captured(subRangeIndex);
}

}
