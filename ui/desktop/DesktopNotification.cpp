// SPDX-License-Identifier: MIT
#include "ui/desktop/DesktopNotification.h"

#include "ui/desktop/DesktopBus.h"

#include <QGuiApplication>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

const DesktopBus::Object notifications{ u"org.freedesktop.Notifications"_s,
    u"/org/freedesktop/Notifications"_s, u"org.freedesktop.Notifications"_s };

}

void DesktopNotification::show(const QString &title, const QString &text)
{
    if (!m_listening)
        m_listening = QDBusConnection::sessionBus().connect(notifications.service,
            notifications.path, notifications.interface, u"ActionInvoked"_s, this,
            SLOT(actionInvoked(uint, QString)));
    const QString program = QGuiApplication::desktopFileName();
    constexpr int expiryOfTheDesktop = -1;
    // The text is markup to the desktop, the title is not.
    const QVariantList arguments{ QGuiApplication::applicationDisplayName(), m_id, program, title,
        text.toHtmlEscaped(), QStringList{ u"default"_s, QString() },
        QVariantMap{ { u"desktop-entry"_s, program } }, expiryOfTheDesktop };
    DesktopBus::call(notifications, u"Notify"_s, arguments,
        [self = QPointer(this), generation = ++m_generation](const QDBusMessage &answer) {
            const uint id = answer.arguments().value(0).toUInt();
            if (answer.type() == QDBusMessage::ErrorMessage)
                return;
            if (self && self->m_generation == generation)
                self->m_id = id;
            else if (!self || self->m_id != id)
                DesktopBus::call(notifications, u"CloseNotification"_s, { id });
        });
}

void DesktopNotification::close()
{
    ++m_generation;
    if (const uint id = std::exchange(m_id, 0); id != 0)
        DesktopBus::call(notifications, u"CloseNotification"_s, { id });
}

void DesktopNotification::actionInvoked(uint id, const QString &action)
{
    if (id == m_id && id != 0 && action == u"default")
        Q_EMIT activated();
}
