// SPDX-License-Identifier: MIT
#include "updates/Version.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::strong_ordering comparePart(const QString &left, const QString &right)
{
    const bool leftIsNumber = left.front().isDigit();
    const bool rightIsNumber = right.front().isDigit();
    if (leftIsNumber && rightIsNumber)
        return left.toULongLong() <=> right.toULongLong();
    if (leftIsNumber != rightIsNumber)
        return rightIsNumber <=> leftIsNumber;
    return left.compare(right, Qt::CaseInsensitive) <=> 0;
}

}

std::optional<Version> Version::parse(const QString &text)
{
    // No number is too long for its type.
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"v?([0-9]{1,9}(?:\\.[0-9]{1,9}){0,7})(?:[-~.]?([A-Za-z][0-9A-Za-z.-]{0,15}))?(?:\\+[0-9A-Za-z.-]{0,40})?"_s));
    static const QRegularExpression part(u"[0-9]+|[A-Za-z]+"_s);
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    Version version;
    version.m_numbers = QVersionNumber::fromString(match.capturedView(1)).normalized();
    auto parts = part.globalMatch(match.capturedView(2));
    while (parts.hasNext())
        version.m_preRelease.append(parts.next().captured());
    return version;
}

std::strong_ordering operator<=>(const Version &left, const Version &right)
{
    if (const int numbers = QVersionNumber::compare(left.m_numbers, right.m_numbers))
        return numbers <=> 0;
    if (left.m_preRelease.isEmpty() != right.m_preRelease.isEmpty())
        return left.m_preRelease.isEmpty() <=> right.m_preRelease.isEmpty();
    return std::lexicographical_compare_three_way(left.m_preRelease.begin(),
        left.m_preRelease.end(), right.m_preRelease.begin(), right.m_preRelease.end(), comparePart);
}
