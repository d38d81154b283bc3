// SPDX-License-Identifier: MIT
#pragma once

#include "support/Defaults.h"

#include <QDateTime>

#include <optional>

enum class PreferencesKeys {
    IsFirstRun,
    FirstLaunch,
};

[[nodiscard]] std::optional<PreferencesKeys> preferencesKey(QStringView rawValue);
[[nodiscard]] QString rawValue(PreferencesKeys key);

/// What the program remembers of its installation. Thread: any.
class Preferences {
public:
    Preferences() = delete;

    static void registerDefaults();
    [[nodiscard]] static bool isFirstRun();
    static void setFirstRun(bool isFirstRun)
    {
        Defaults::setValue(rawValue(PreferencesKeys::IsFirstRun), isFirstRun);
    }
    [[nodiscard]] static QDateTime firstLaunchDate();
    static void setFirstLaunchDate(const QDateTime &date)
    {
        Defaults::setValue(rawValue(PreferencesKeys::FirstLaunch), date);
    }

    /// What the user set in the settings.
    [[nodiscard]] static bool sendsUsage() { return isOn(usageKey); }
    static void setSendsUsage(bool sends) { Defaults::setValue(usageKey, sends); }
    [[nodiscard]] static bool checksForUpdates() { return isOn(updatesKey); }
    static void setChecksForUpdates(bool checks) { Defaults::setValue(updatesKey, checks); }
    /// Such as "de"; empty for the desktop's language.
    [[nodiscard]] static QString language() { return Defaults::value(languageKey).toString(); }
    static void setLanguage(const QString &language) { Defaults::setValue(languageKey, language); }

private:
    static constexpr QLatin1StringView usageKey{ "SendsUsage" };
    static constexpr QLatin1StringView updatesKey{ "ChecksForUpdates" };
    static constexpr QLatin1StringView languageKey{ "Language" };

    static bool isOn(const QString &key)
    {
        const QVariant stored = Defaults::value(key);
        return !stored.isValid() || stored.toBool();
    }
};
