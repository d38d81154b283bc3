// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

/// The user's settings store under a layer of registered defaults, which are never written to disk
/// and are consulted only when the user's store has no value. Thread: any.
namespace Defaults {

void registerDefaults(const QVariantMap &defaults);
/// The stored value, else the registered one, else an invalid value.
[[nodiscard]] QVariant value(const QString &key);
/// Errors: a store that can't be written is ignored.
void setValue(const QString &key, const QVariant &value);
void remove(const QString &key);

}
