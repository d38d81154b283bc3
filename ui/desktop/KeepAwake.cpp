// SPDX-License-Identifier: MIT
#include "ui/desktop/KeepAwake.h"

#include "ui/desktop/DesktopBus.h"

#include <QCoreApplication>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>

using namespace Qt::StringLiterals;

namespace {

const QString portal = u"org.freedesktop.portal.Desktop"_s;
constexpr uint suspendAndIdle = 4U | 8U;

void closeRequest(const QDBusObjectPath &request)
{
    DesktopBus::call(QDBusConnection::sessionBus(),
        QDBusMessage::createMethodCall(
            portal, request.path(), u"org.freedesktop.portal.Request"_s, u"Close"_s));
}

}

/// An answer that comes after the last owner left is given back at once.
struct KeepAwake::Hold {
    QDBusObjectPath request;
    QDBusUnixFileDescriptor descriptor;

    Hold() = default;
    Q_DISABLE_COPY_MOVE(Hold)
    ~Hold()
    {
        if (!request.path().isEmpty())
            closeRequest(request);
    }
};

void KeepAwake::start(const QString &reason)
{
    m_hold = std::make_shared<Hold>();
    const std::weak_ptr<Hold> hold = m_hold;
    const auto askLoginManager = [hold, reason] {
        QDBusMessage inhibit = QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s,
            u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, u"Inhibit"_s);
        inhibit << u"sleep:idle"_s << QCoreApplication::applicationName() << reason << u"block"_s;
        DesktopBus::call(QDBusConnection::systemBus(), inhibit, [hold](const QDBusMessage &answer) {
            if (const std::shared_ptr<Hold> owner = hold.lock())
                owner->descriptor = answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
        });
    };
    QDBusMessage inhibit = QDBusMessage::createMethodCall(portal,
        u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Inhibit"_s, u"Inhibit"_s);
    inhibit << QString() << suspendAndIdle << QVariantMap{ { u"reason"_s, reason } };
    DesktopBus::call(QDBusConnection::sessionBus(), inhibit,
        [hold, askLoginManager](const QDBusMessage &answer) {
            const std::shared_ptr<Hold> owner = hold.lock();
            const auto given = answer.arguments().value(0).value<QDBusObjectPath>();
            if (answer.type() == QDBusMessage::ErrorMessage && owner)
                askLoginManager();
            else if (owner)
                owner->request = given;
            else if (!given.path().isEmpty())
                closeRequest(given);
        });
}

void KeepAwake::stop() { m_hold.reset(); }
