// SPDX-License-Identifier: MIT
#include "ui/widgets/Announcement.h"

#include <QAccessible>

Announcement::Announcement(QWidget *window)
    : QWidget(window)
{
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
