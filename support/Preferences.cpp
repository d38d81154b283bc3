// SPDX-License-Identifier: MIT
#include "support/Preferences.h"

#include "support/Defaults.h"

using namespace Qt::StringLiterals;

std::optional<PreferencesKeys> preferencesKey(QStringView rawValue)
{
    if (rawValue == u"IsFirstRun")
        return PreferencesKeys::IsFirstRun;
    if (rawValue == u"FirstLaunch")
        return PreferencesKeys::FirstLaunch;
    return std::nullopt;
}

QString rawValue(PreferencesKeys key)
{
    switch (key) {
    case PreferencesKeys::IsFirstRun:
        return u"IsFirstRun"_s;
    case PreferencesKeys::FirstLaunch:
        return u"FirstLaunch"_s;
    }
    Q_UNREACHABLE();
}

void Preferences::registerDefaults()
{
    Defaults::registerDefaults({ { rawValue(PreferencesKeys::IsFirstRun), true } });
}

bool Preferences::isFirstRun()
{
    return Defaults::value(rawValue(PreferencesKeys::IsFirstRun)).toBool();
}

void Preferences::setFirstRun(bool isFirstRun)
{
    Defaults::setValue(rawValue(PreferencesKeys::IsFirstRun), isFirstRun);
}

QDateTime Preferences::firstLaunchDate()
{
    const QVariant stored = Defaults::value(rawValue(PreferencesKeys::FirstLaunch));
    if (stored.metaType() == QMetaType::fromType<QDateTime>())
        return stored.toDateTime();
    setFirstLaunchDate(QDateTime::currentDateTime());
    return QDateTime::currentDateTime();
}

void Preferences::setFirstLaunchDate(const QDateTime &date)
{
    Defaults::setValue(rawValue(PreferencesKeys::FirstLaunch), date);
}
