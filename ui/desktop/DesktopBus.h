// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>
#include <functional>

/// Calls on D-Bus that nobody waits for. A missing bus or service is an error answer.
namespace DesktopBus {

using Answer = std::function<void(const QDBusMessage &answer)>;

struct Method {
    QString service;
    QString path;
    QString interface;
    QString name;
};

/// The answer comes later, as an error message after the time limit.
void call(const QDBusConnection &bus, const Method &method, const QVariantList &arguments,
    const Answer &answer = {}, std::chrono::milliseconds limit = std::chrono::seconds(20));

}
