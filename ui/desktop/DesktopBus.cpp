// SPDX-License-Identifier: MIT
#include "ui/desktop/DesktopBus.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusPendingCallWatcher>

void DesktopBus::call(const Object &object, const QString &method, const QVariantList &arguments,
    const Answer &answer, const QDBusConnection &bus)
{
    constexpr int limit = 20'000;
    // Without a connection a pending call never ends.
    if (!bus.isConnected() && answer)
        return void(QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [answer] { answer(QDBusMessage::createError(QDBusError::Disconnected, QString())); },
            Qt::QueuedConnection));
    QDBusMessage message
        = QDBusMessage::createMethodCall(object.service, object.path, object.interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall pending = bus.asyncCall(message, limit);
    if (!answer)
        return;
    auto *watcher = new QDBusPendingCallWatcher(pending, QCoreApplication::instance());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
        [answer](QDBusPendingCallWatcher *finished) {
            finished->deleteLater();
            answer(finished->reply());
        });
}
