// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

/// Calls on D-Bus that nobody waits for. A missing bus or service is an error answer.
namespace DesktopBus {

using Answer = std::function<void(const QDBusMessage &answer)>;

/// The answer comes later, as an error message after 20 seconds.
void call(const QDBusConnection &bus, const QDBusMessage &method, const Answer &answer = {});

}
