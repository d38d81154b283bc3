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
        { .service = portal,
            .path = request.path(),
            .interface = u"org.freedesktop.portal.Request"_s,
            .name = u"Close"_s },
        {});
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

    static void askPortal(const std::shared_ptr<Hold> &hold, const QString &reason);
    static void askLoginManager(const std::shared_ptr<Hold> &hold, const QString &reason);
};

void KeepAwake::Hold::askPortal(const std::shared_ptr<Hold> &hold, const QString &reason)
{
    const DesktopBus::Method inhibit{ .service = portal,
        .path = u"/org/freedesktop/portal/desktop"_s,
        .interface = u"org.freedesktop.portal.Inhibit"_s,
        .name = u"Inhibit"_s };
    const QVariantMap options{ { u"reason"_s, reason } };
    DesktopBus::call(QDBusConnection::sessionBus(), inhibit, { QString(), suspendAndIdle, options },
        [weak = std::weak_ptr(hold), reason](const QDBusMessage &answer) {
            const std::shared_ptr<Hold> owner = weak.lock();
            const auto given = answer.arguments().value(0).value<QDBusObjectPath>();
            if (answer.type() == QDBusMessage::ErrorMessage && owner)
                askLoginManager(owner, reason);
            else if (owner)
                owner->request = given;
            else if (!given.path().isEmpty())
                closeRequest(given);
        });
}

void KeepAwake::Hold::askLoginManager(const std::shared_ptr<Hold> &hold, const QString &reason)
{
    const DesktopBus::Method inhibit{ .service = u"org.freedesktop.login1"_s,
        .path = u"/org/freedesktop/login1"_s,
        .interface = u"org.freedesktop.login1.Manager"_s,
        .name = u"Inhibit"_s };
    const QVariantList arguments{ u"sleep:idle"_s, QCoreApplication::applicationName(), reason,
        u"block"_s };
    DesktopBus::call(QDBusConnection::systemBus(), inhibit, arguments,
        [weak = std::weak_ptr(hold)](const QDBusMessage &answer) {
            if (const std::shared_ptr<Hold> owner = weak.lock())
                owner->descriptor = answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
        });
}

KeepAwake::KeepAwake() = default;
KeepAwake::~KeepAwake() = default;

void KeepAwake::start(const QString &reason)
{
    m_hold = std::make_shared<Hold>();
    Hold::askPortal(m_hold, reason);
}

void KeepAwake::stop() { m_hold.reset(); }
