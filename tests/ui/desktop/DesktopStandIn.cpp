// SPDX-License-Identifier: MIT
#include "tests/ui/desktop/DesktopStandIn.h"

#include <QDBusError>

using namespace Qt::StringLiterals;

namespace {

const QString connectionName = u"stand-in"_s;

}

DesktopStandIn::DesktopStandIn()
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName))
{
    m_bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
}

DesktopStandIn::~DesktopStandIn()
{
    for (const QString &service : std::as_const(m_services))
        m_bus.unregisterService(service);
    m_bus.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus(connectionName);
}

bool DesktopStandIn::offer(const QString &service)
{
    m_services.append(service);
    return m_bus.registerService(service);
}

void DesktopStandIn::answer(const QString &method, const QVariantList &arguments)
{
    m_answers.insert(method, arguments);
}

void DesktopStandIn::release()
{
    m_holding = false;
    for (const QDBusMessage &message : std::exchange(m_held, {}))
        reply(message);
}

QList<QDBusMessage> DesktopStandIn::calls(const QString &method) const
{
    QList<QDBusMessage> found;
    for (const QDBusMessage &message : m_calls) {
        if (message.member() == method)
            found.append(message);
    }
    return found;
}

void DesktopStandIn::send(const QDBusMessage &signal) { m_bus.send(signal); }

QString DesktopStandIn::introspect(const QString & /*path*/) const { return {}; }

bool DesktopStandIn::handleMessage(
    const QDBusMessage &message, const QDBusConnection & /*connection*/)
{
    message.setDelayedReply(true);
    m_calls.append(message);
    if (m_holding)
        m_held.append(message);
    else
        reply(message);
    return true;
}

void DesktopStandIn::reply(const QDBusMessage &message)
{
    const auto answer = m_answers.constFind(message.member());
    m_bus.send(answer != m_answers.cend()
            ? message.createReply(*answer)
            : message.createErrorReply(QDBusError::Failed, u"refused"_s));
}
