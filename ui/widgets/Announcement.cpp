// SPDX-License-Identifier: MIT
#include "ui/widgets/Announcement.h"

#include <QAccessibleWidget>

namespace {

QAccessibleInterface *notificationOf(const QString &, QObject *object)
{
    auto *announcement = qobject_cast<Announcement *>(object);
    return announcement ? new QAccessibleWidget(announcement, QAccessible::Notification) : nullptr;
}

}

Announcement::Announcement(QWidget *window)
    : QWidget(window)
{
    QAccessible::installFactory(notificationOf);
    setGeometry(0, 0, 0, 0);
}

// A notification that appears is read at once; the desktop never hears of Qt's own alerts.
void Announcement::say(QWidget *outlet)
{
    if (!QAccessible::isActive())
        return;
    setAccessibleName(QAccessible::queryAccessibleInterface(outlet)->text(QAccessible::Name));
    QAccessibleEvent appears(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appears);
}
