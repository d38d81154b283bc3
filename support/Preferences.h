// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

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
    static void setFirstRun(bool isFirstRun);
    [[nodiscard]] static QDateTime firstLaunchDate();
    static void setFirstLaunchDate(const QDateTime &date);

    /// What the user set in the settings.
    [[nodiscard]] static bool sendsUsage();
    static void setSendsUsage(bool sends);
    [[nodiscard]] static bool checksForUpdates();
    static void setChecksForUpdates(bool checks);
    /// Such as "de"; empty for the desktop's language.
    [[nodiscard]] static QString language();
    static void setLanguage(const QString &language);
};
