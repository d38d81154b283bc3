// SPDX-License-Identifier: MIT
#include "support/DurationInfo.h"

#include "support/Localized.h"

QString DurationInfo::toString() const
{
    if (days() >= 1)
        return formatted(QT_TRANSLATE_NOOP3("Localizable", "%dd %dh %dm %ds",
                             "format string for days/hours/minutes/seconds"),
            { days(), hours(), minutes(), seconds() });
    if (hours() >= 1)
        return formatted(QT_TRANSLATE_NOOP3("Localizable", "%dh %dm %ds",
                             "format string for hours/minutes/seconds"),
            { hours(), minutes(), seconds() });
    if (minutes() >= 1)
        return formatted(
            QT_TRANSLATE_NOOP3("Localizable", "%dm %ds", "format string for minutes/seconds"),
            { minutes(), seconds() });
    return formatted(
        QT_TRANSLATE_NOOP3("Localizable", "%ds", "format string for seconds"), { seconds() });
}
