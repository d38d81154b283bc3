// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QList>

/// Plays the desktop's services on the session bus, through a connection of its own: records every
/// call and answers as told.
class DesktopStandIn : public QDBusVirtualObject {
    Q_OBJECT

public:
    DesktopStandIn();
    ~DesktopStandIn() override;

    /// Owns a service's name until destruction.
    bool offer(const QString &service);
    /// The answer to a method; methods without one are answered with an error.
    void answer(const QString &method, const QVariantList &arguments);
    /// Keeps answers back until release().
    void hold() { m_holding = true; }
    void release();
    /// Calls of a method so far, in order.
    [[nodiscard]] QList<QDBusMessage> calls(const QString &method) const;
    /// Sends a signal to everybody.
    void send(const QDBusMessage &signal);

    [[nodiscard]] QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    void reply(const QDBusMessage &message);

    QDBusConnection m_bus;
    QHash<QString, QVariantList> m_answers;
    QList<QDBusMessage> m_calls;
    QList<QDBusMessage> m_held;
    QStringList m_services;
    bool m_holding = false;
};
