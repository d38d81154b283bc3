// SPDX-License-Identifier: MIT
#include "ui/desktop/DesktopBus.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusPendingCallWatcher>

namespace DesktopBus {

void call(const QDBusConnection &bus, const QDBusMessage &method, const Answer &answer)
{
    constexpr int limit = 20'000;
    // Without a connection a pending call never ends.
    if (!bus.isConnected() && answer)
        return void(QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [answer] { answer(QDBusMessage::createError(QDBusError::Disconnected, QString())); },
            Qt::QueuedConnection));
    const QDBusPendingCall pending = bus.asyncCall(method, limit);
    if (!answer)
        return;
    auto *watcher = new QDBusPendingCallWatcher(pending, QCoreApplication::instance());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
        [answer](QDBusPendingCallWatcher *finished) {
            finished->deleteLater();
            answer(finished->reply());
        });
}

}
