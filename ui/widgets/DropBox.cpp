// SPDX-License-Identifier: MIT
#include "ui/widgets/DropBox.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QVariant>

#include <algorithm>

namespace {

constexpr auto dragDropKey = "drag'n'drop";

}

bool allowDragDrop(const QWidget *view)
{
    const QVariant value = view->property(dragDropKey);
    return value.typeId() == QMetaType::Bool && value.toBool();
}

void setAllowDragDrop(QWidget *view, bool allow) { view->setProperty(dragDropKey, allow); }

void DropBox::registerForDraggedTypes(const QStringList &mimeTypes)
{
    m_draggedTypes = mimeTypes;
    setAcceptDrops(!mimeTypes.isEmpty());
}

void DropBox::dragEnterEvent(QDragEnterEvent *event) { answer(event); }

void DropBox::dragMoveEvent(QDragMoveEvent *event) { answer(event); }

void DropBox::dragLeaveEvent(QDragLeaveEvent *) { setHovered(false); }

void DropBox::dropEvent(QDropEvent *event)
{
    answer(event);
    setHovered(false);
    if (event->isAccepted())
        Q_EMIT performDragOperation(event->mimeData());
}

void DropBox::answer(QDropEvent *event)
{
    const bool concerned = std::any_of(m_draggedTypes.cbegin(), m_draggedTypes.cend(),
        [event](const QString &type) { return event->mimeData()->hasFormat(type); });
    const bool accepted = concerned && allowDragDrop(this);
    event->setDropAction(accepted ? Qt::CopyAction : Qt::IgnoreAction);
    event->setAccepted(accepted);
    setHovered(accepted);
}

void DropBox::setHovered(bool hovered)
{
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    update();
}

void DropBox::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!m_hovered)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = palette().color(QPalette::Highlight);
    painter.setPen(QPen(fill, 2.5));
    fill.setAlphaF(0.12F);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(5, 5, -5, -5), 16, 16);
}
