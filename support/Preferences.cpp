// SPDX-License-Identifier: MIT
#include "support/Preferences.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// In the order of PreferencesKeys.
constexpr std::array names{ "IsFirstRun"_L1, "FirstLaunch"_L1 };

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

QDateTime Preferences::firstLaunchDate()
{
    const QVariant stored = Defaults::value(rawValue(PreferencesKeys::FirstLaunch));
    if (stored.metaType() == QMetaType::fromType<QDateTime>())
        return stored.toDateTime();
    setFirstLaunchDate(QDateTime::currentDateTime());
    return QDateTime::currentDateTime();
}
