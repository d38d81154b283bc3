// SPDX-License-Identifier: MIT
#include "updates/Version.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

std::optional<Version> Version::parse(const QString &text)
{
    // No number is too long for its type.
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"v?([0-9]{1,9}(?:\\.[0-9]{1,9}){0,7})(?:[-~.]?([A-Za-z][0-9A-Za-z.-]{0,15}))?(?:\\+[0-9A-Za-z.-]{0,40})?"_s));
    static const QRegularExpression part(u"[0-9]+|[a-z]+"_s);
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    Version version;
    version.m_numbers = QVersionNumber::fromString(match.capturedView(1)).normalized();
    for (const auto &each : part.globalMatch(match.captured(2).toLower())) {
        const QString word = each.captured();
        version.m_preRelease << (word.front().isDigit() ? word.rightJustified(16, u'0') : word);
    }
    // A release comes after everything that starts with a letter.
    if (version.m_preRelease.isEmpty())
        version.m_preRelease << u"~"_s;
    return version;
}
