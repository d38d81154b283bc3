// SPDX-License-Identifier: MIT
#include "support/DurationInfo.h"

#include "support/Localized.h"

DurationInfo::DurationInfo(qint64 seconds)
    : m_days(seconds / 86400)
    , m_hours(seconds / 3600)
    , m_minutes(seconds % 3600 / 60)
    , m_seconds(seconds % 3600 % 60)
{
}

QString DurationInfo::toString() const
{
    if (m_days >= 1)
        return formatted(QT_TRANSLATE_NOOP3("Localizable", "%dd %dh %dm %ds",
                             "format string for days/hours/minutes/seconds"),
            { m_days, m_hours, m_minutes, m_seconds });
    if (m_hours >= 1)
        return formatted(QT_TRANSLATE_NOOP3("Localizable", "%dh %dm %ds",
                             "format string for hours/minutes/seconds"),
            { m_hours, m_minutes, m_seconds });
    if (m_minutes >= 1)
        return formatted(
            QT_TRANSLATE_NOOP3("Localizable", "%dm %ds", "format string for minutes/seconds"),
            { m_minutes, m_seconds });
    return formatted(
        QT_TRANSLATE_NOOP3("Localizable", "%ds", "format string for seconds"), { m_seconds });
}
