// SPDX-License-Identifier: MIT
#include "support/Defaults.h"

#include <QSettings>

#include <mutex>

using namespace Qt::StringLiterals;

namespace {

std::mutex registeredMutex;

QVariantMap &registered()
{
    static QVariantMap map;
    return map;
}

QSettings store() { return QSettings(u"VideoConverter"_s, u"VideoConverter"_s); }

}

namespace Defaults {

void registerDefaults(const QVariantMap &defaults)
{
    const std::lock_guard lock(registeredMutex);
    registered().insert(defaults);
}

QVariant value(const QString &key)
{
    const std::lock_guard lock(registeredMutex);
    return store().value(key, registered().value(key));
}

void setValue(const QString &key, const QVariant &value)
{
    QSettings settings = store();
    settings.setValue(key, value);
}

void remove(const QString &key) { store().remove(key); }

}
