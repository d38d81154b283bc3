// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>

/// Plays the desktop's services on the session bus, through a connection of its own: records every
/// call and answers as it was made to.
class DesktopStandIn : public QDBusVirtualObject {
public:
    using Answers = QHash<QString, QVariantList>;

    /// Methods without an answer are answered with an error.
    DesktopStandIn(const QStringList &services, const Answers &answers);
    ~DesktopStandIn() override;

    /// Calls of a method so far, in order.
    [[nodiscard]] QList<QDBusMessage> calls(const QString &method) const;
    /// An argument of the only call of a method.
    [[nodiscard]] QVariant argument(const QString &method, qsizetype index) const;
    /// A click on a notification, or on one of its actions.
    void click(uint id, const QString &action = QStringLiteral("default"));
    void send(QDBusMessage signal, const QVariantList &arguments);

    [[nodiscard]] QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusConnection m_bus;
    QStringList m_services;
    Answers m_answers;
    QList<QDBusMessage> m_calls;
};
