// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

/// The user's settings over registered defaults, which are never written to disk. Thread: any.
namespace Defaults {

void registerDefaults(const QVariantMap &defaults);
/// The stored value, else the registered one, else an invalid value.
[[nodiscard]] QVariant value(const QString &key);
/// Errors: a store that can't be written is ignored.
void setValue(const QString &key, const QVariant &value);
void remove(const QString &key);

}
