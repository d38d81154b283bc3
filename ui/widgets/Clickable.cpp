// SPDX-License-Identifier: MIT
#include "ui/widgets/Clickable.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

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
