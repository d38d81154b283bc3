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
};
