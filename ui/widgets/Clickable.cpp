// SPDX-License-Identifier: MIT
#include "ui/widgets/Clickable.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>

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

bool Clickable::isPressed(const QWidget &view, const QEvent &event)
{
    if (!view.isEnabled())
        return false;
    if (event.type() == QEvent::MouseButtonPress)
        return static_cast<const QMouseEvent &>(event).button() == Qt::LeftButton;
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

void Clickable::paintFocus(QPainter &painter, const QWidget &view)
{
    if (!view.hasFocus() || !view.window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(view.palette().color(QPalette::Link), 2));
    painter.drawRoundedRect(QRectF(view.rect()).adjusted(1, 1, -1, -1), 8, 8);
}

void Clickable::installAccessibility() { QAccessible::installFactory(makeInterface); }
