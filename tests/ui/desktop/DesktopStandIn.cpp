// SPDX-License-Identifier: MIT
#include "tests/ui/desktop/DesktopStandIn.h"

#include <QDBusError>

using namespace Qt::StringLiterals;

DesktopStandIn::DesktopStandIn(const QStringList &services, const Answers &answers)
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"stand-in"_s))
    , m_services(services)
    , m_answers(answers)
{
    m_bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
    for (const QString &service : services)
        m_bus.registerService(service);
}

DesktopStandIn::~DesktopStandIn()
{
    for (const QString &service : std::as_const(m_services))
        m_bus.unregisterService(service);
    m_bus.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus(m_bus.name());
}

QList<QDBusMessage> DesktopStandIn::calls(const QString &method) const
{
    QList<QDBusMessage> found = m_calls;
    found.removeIf([&](const QDBusMessage &message) { return message.member() != method; });
    return found;
}

QVariant DesktopStandIn::argument(const QString &method, qsizetype index) const
{
    const QList<QDBusMessage> found = calls(method);
    return found.size() == 1 ? found.constFirst().arguments().value(index) : QVariant();
}

void DesktopStandIn::click(uint id, const QString &action)
{
    send(QDBusMessage::createSignal(u"/org/freedesktop/Notifications"_s,
             u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s),
        { id, action });
}

void DesktopStandIn::send(QDBusMessage signal, const QVariantList &arguments)
{
    signal.setArguments(arguments);
    m_bus.send(signal);
}

QString DesktopStandIn::introspect(const QString & /*path*/) const { return {}; }

bool DesktopStandIn::handleMessage(
    const QDBusMessage &message, const QDBusConnection & /*connection*/)
{
    m_calls.append(message);
    const auto answer = m_answers.constFind(message.member());
    return m_bus.send(answer != m_answers.cend()
            ? message.createReply(*answer)
            : message.createErrorReply(QDBusError::Failed, u"refused"_s));
}
