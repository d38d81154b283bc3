// SPDX-License-Identifier: MIT
#include "ui/widgets/Announcement.h"

#include <QAccessibleWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A view that takes the focus, as a button; one that does not, as what it shows.
class ViewInterface : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override
    {
        const bool isButton = widget()->focusPolicy() != Qt::NoFocus;
        return isButton ? QAccessible::PushButton : QAccessibleWidget::role();
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        const bool isNameless = kind == QAccessible::Name && text.isEmpty();
        return isNameless ? widget()->property("text").toString() : text;
    }

    QStringList actionNames() const override
    {
        return role() == QAccessible::PushButton ? QStringList{ pressAction() }
                                                 : QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            QMetaObject::invokeMethod(widget(), "clicked", Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }
};

constexpr std::pair<QLatin1StringView, QAccessible::Role> roles[] = {
    { "ImageView"_L1, QAccessible::Graphic },
    { "TextField"_L1, QAccessible::StaticText },
    { "SpinningView"_L1, QAccessible::Animation },
    { "Announcement"_L1, QAccessible::Notification },
};

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    for (const auto &[name, role] : roles) {
        if (className == name)
            return new ViewInterface(qobject_cast<QWidget *>(object), role);
    }
    return nullptr;
}

}

Announcement::Announcement(QWidget *window)
    : QWidget(window)
{
    setGeometry(0, 0, 0, 0);
    QAccessible::installFactory(makeInterface);
}

// A notification that appears is read at once; the desktop never hears of Qt's own alerts.
void Announcement::say(QWidget *outlet)
{
    const QString text = outlet->property("text").toString();
    if (!QAccessible::isActive() || text.isEmpty())
        return;
    setAccessibleName(text);
    QAccessibleEvent appears(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appears);
}
