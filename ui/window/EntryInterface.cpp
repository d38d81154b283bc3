// SPDX-License-Identifier: MIT
#include "ui/window/EntryInterface.h"

#include <QMenu>

namespace {

constexpr auto describedKey = "isDescribed";

}

void EntryInterface::describe(const QMenu &menu)
{
    for (QAction *entry : menu.actions())
        entry->setProperty(describedKey, !entry->isSeparator());
    QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
        auto *entry = qobject_cast<QAction *>(object);
        return entry && entry->property(describedKey).toBool() ? new EntryInterface(entry)
                                                               : nullptr;
    });
}

EntryInterface::EntryInterface(QAction *entry)
    : QAccessibleObject(entry)
{
}

QAction *EntryInterface::entry() const { return static_cast<QAction *>(object()); }

QMenu *EntryInterface::menu() const
{
    for (QObject *place : entry()->associatedObjects()) {
        if (auto *menu = qobject_cast<QMenu *>(place))
            return menu;
    }
    return nullptr;
}

QAccessibleInterface *EntryInterface::parent() const
{
    return QAccessible::queryAccessibleInterface(menu());
}

QString EntryInterface::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return entry()->text().remove(u'&');
    return kind == QAccessible::Description ? entry()->toolTip() : QString();
}

QRect EntryInterface::rect() const
{
    const QMenu *place = menu();
    return place ? QRect(place->mapToGlobal(place->actionGeometry(entry()).topLeft()),
               place->actionGeometry(entry()).size())
                 : QRect();
}

QAccessible::State EntryInterface::state() const
{
    const QMenu *place = menu();
    QAccessible::State state;
    state.focusable = true;
    state.disabled = !entry()->isEnabled();
    state.invisible = !place || !place->isVisible();
    state.focused = place && place->activeAction() == entry();
    state.hotTracked = state.focused;
    return state;
}

void *EntryInterface::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

void EntryInterface::doAction(const QString &name)
{
    if (name == pressAction())
        entry()->trigger();
}
