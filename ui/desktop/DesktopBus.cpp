// SPDX-License-Identifier: MIT
#include "ui/desktop/DesktopBus.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusPendingCallWatcher>

namespace DesktopBus {

void call(const QDBusConnection &bus, const Method &method, const QVariantList &arguments,
    const Answer &answer, std::chrono::milliseconds limit)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        method.service, method.path, method.interface, method.name);
    message.setArguments(arguments);
    // Without a connection a pending call never ends.
    if (!bus.isConnected() && answer)
        return void(QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [answer] { answer(QDBusMessage::createError(QDBusError::Disconnected, QString())); },
            Qt::QueuedConnection));
    const QDBusPendingCall pending = bus.asyncCall(message, static_cast<int>(limit.count()));
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
