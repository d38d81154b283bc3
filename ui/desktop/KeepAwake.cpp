// SPDX-License-Identifier: MIT
#include "ui/desktop/KeepAwake.h"

#include "ui/desktop/DesktopBus.h"

#include <QCoreApplication>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>

using namespace Qt::StringLiterals;

namespace {

/// Lives until nobody needs the machine awake, and at least until the desktop has answered.
struct Hold {
    QDBusObjectPath request;
    QDBusUnixFileDescriptor descriptor;

    Hold() = default;
    Q_DISABLE_COPY_MOVE(Hold)
    ~Hold()
    {
        if (!request.path().isEmpty())
            DesktopBus::call({ u"org.freedesktop.portal.Desktop"_s, request.path(),
                                 u"org.freedesktop.portal.Request"_s },
                u"Close"_s, {});
    }
};

}

std::shared_ptr<void> keepAwake(const QString &reason)
{
    const auto hold = std::make_shared<Hold>();
    const DesktopBus::Object portal{ u"org.freedesktop.portal.Desktop"_s,
        u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Inhibit"_s };
    constexpr uint suspendAndIdle = 4U | 8U;
    const QVariantMap options{ { u"reason"_s, reason } };
    const auto askLoginManager = [hold, reason] {
        const DesktopBus::Object manager{ u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
            u"org.freedesktop.login1.Manager"_s };
        DesktopBus::call(
            manager, u"Inhibit"_s,
            { u"sleep:idle"_s, QCoreApplication::applicationName(), reason, u"block"_s },
            [hold](const QDBusMessage &answer) {
                hold->descriptor = answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
            },
            QDBusConnection::systemBus());
    };
    DesktopBus::call(portal, u"Inhibit"_s, { QString(), suspendAndIdle, options },
        [hold, askLoginManager](const QDBusMessage &answer) {
            if (answer.type() == QDBusMessage::ErrorMessage)
                askLoginManager();
            else
                hold->request = answer.arguments().value(0).value<QDBusObjectPath>();
        });
    return hold;
}
