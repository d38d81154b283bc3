// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleObject>

class QAction;
class QMenu;

/// An entry of a menu for screen readers, which tells its tool tip as its description; the
/// toolkit's own tells no description.
class EntryInterface : public QAccessibleObject, public QAccessibleActionInterface {
public:
    /// Describes the entries of this menu from now on.
    static void describe(const QMenu &menu);

    explicit EntryInterface(QAction *entry);

    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::MenuItem; }
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override { return { pressAction() }; }
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] QAction *entry() const;
    [[nodiscard]] QMenu *menu() const;
};
