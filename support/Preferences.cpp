// SPDX-License-Identifier: MIT
#include "support/Preferences.h"

#include "support/Defaults.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// In the order of PreferencesKeys.
constexpr std::array names{ "IsFirstRun"_L1, "FirstLaunch"_L1 };

constexpr auto usageKey = "SendsUsage"_L1;
constexpr auto updatesKey = "ChecksForUpdates"_L1;
constexpr auto languageKey = "Language"_L1;

bool isOn(const QString &key)
{
    const QVariant stored = Defaults::value(key);
    return !stored.isValid() || stored.toBool();
}

}

std::optional<PreferencesKeys> preferencesKey(QStringView rawValue)
{
    const auto *const found = std::find(names.begin(), names.end(), rawValue);
    return found == names.end()
        ? std::nullopt
        : std::optional(static_cast<PreferencesKeys>(found - names.begin()));
}

QString rawValue(PreferencesKeys key) { return names.at(static_cast<std::size_t>(key)); }

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

bool Preferences::sendsUsage() { return isOn(usageKey); }

void Preferences::setSendsUsage(bool sends) { Defaults::setValue(usageKey, sends); }

bool Preferences::checksForUpdates() { return isOn(updatesKey); }

void Preferences::setChecksForUpdates(bool checks) { Defaults::setValue(updatesKey, checks); }

QString Preferences::language() { return Defaults::value(languageKey).toString(); }

void Preferences::setLanguage(const QString &language)
{
    Defaults::setValue(languageKey, language);
}
