// SPDX-License-Identifier: MIT
#include "ui/widgets/Clickable.h"

#include "ui/widgets/Announcement.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/SpinningView.h"
#include "ui/widgets/TextField.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <array>

namespace {

/// A view that listens to clicks, as a button; one that does not, as what it shows.
class ClickableInterface : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override
    {
        const bool isButton = widget()->focusPolicy() != Qt::NoFocus;
        return isButton ? QAccessible::PushButton : QAccessibleWidget::role();
    }

    QString text(QAccessible::Text kind) const override
    {
        const auto *label = qobject_cast<TextField *>(widget());
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() && label ? label->text() : text;
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

class SpinnerInterface : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = !static_cast<SpinningView *>(widget())->spinning();
        return state;
    }
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *image = qobject_cast<ImageView *>(object))
        return new ClickableInterface(image, QAccessible::Graphic);
    if (auto *label = qobject_cast<TextField *>(object))
        return new ClickableInterface(label, QAccessible::StaticText);
    if (auto *spinner = qobject_cast<SpinningView *>(object))
        return new SpinnerInterface(spinner, QAccessible::Animation);
    if (auto *announcement = qobject_cast<Announcement *>(object))
        return new QAccessibleWidget(announcement, QAccessible::Notification);
    return nullptr;
}

}

void Clickable::enable(QWidget *view)
{
    view->setFocusPolicy(Qt::StrongFocus);
    view->setAttribute(Qt::WA_Hover);
}

bool Clickable::isPressed(QWidget &view, const QEvent &event)
{
    constexpr std::array changesOfLook{ QEvent::HoverEnter, QEvent::HoverLeave, QEvent::FocusIn,
        QEvent::FocusOut, QEvent::PaletteChange };
    if (std::ranges::count(changesOfLook, event.type()) > 0)
        view.update();
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
