// SPDX-License-Identifier: MIT
#include "support/Defaults.h"

#include <QSettings>

#include <mutex>

using namespace Qt::StringLiterals;

namespace {

std::mutex defaultsMutex;

QVariantMap &registered()
{
    static QVariantMap map;
    return map;
}

class Store : public QSettings {
public:
    Store()
        : QSettings(u"VideoConverter"_s, u"VideoConverter"_s)
    {
    }
};

}

namespace Defaults {

void registerDefaults(const QVariantMap &defaults)
{
    const std::lock_guard lock(defaultsMutex);
    registered().insert(defaults);
}

QVariant value(const QString &key)
{
    const std::lock_guard lock(defaultsMutex);
    return Store().value(key, registered().value(key));
}

void setValue(const QString &key, const QVariant &value)
{
    const std::lock_guard lock(defaultsMutex);
    Store().setValue(key, value);
}

void remove(const QString &key)
{
    const std::lock_guard lock(defaultsMutex);
    Store().remove(key);
}

}
