// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

/// Calls on D-Bus that nobody waits for. A missing bus or service is an error answer.
namespace DesktopBus {

struct Object {
    QString service;
    QString path;
    QString interface;
};

using Answer = std::function<void(const QDBusMessage &answer)>;

/// The answer comes later, as an error message after 20 seconds.
void call(const Object &object, const QString &method, const QVariantList &arguments,
    const Answer &answer = {}, const QDBusConnection &bus = QDBusConnection::sessionBus());

}
