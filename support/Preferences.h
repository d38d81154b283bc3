// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// Keys of the settings that outlive a run.
enum class PreferencesKeys {
    IsFirstRun,
    FirstLaunch,
};

/// The key with exactly this stored text, if there is one.
[[nodiscard]] std::optional<PreferencesKeys> preferencesKey(QStringView rawValue);
[[nodiscard]] QString rawValue(PreferencesKeys key);

/// What the program remembers of its installation.
/// Thread: any.
class Preferences {
public:
    Preferences() = delete;

    static void registerDefaults();
    /// True until the first launch has been handled.
    [[nodiscard]] static bool isFirstRun();
    static void setFirstRun(bool isFirstRun);
    /// Moment of the first launch; the first reading records it.
    [[nodiscard]] static QDateTime firstLaunchDate();
    static void setFirstLaunchDate(const QDateTime &date);
};
