// SPDX-License-Identifier: MIT
#include "ui/widgets/ConvertPopupButton.h"

#include "ui/widgets/Clickable.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>

ConvertPopupButton::ConvertPopupButton(QWidget *parent)
    : QPushButton(parent)
    , m_cell(QString(), true)
{
    QFont faceFont = font();
    faceFont.setWeight(QFont::DemiBold);
    setFont(faceFont);
    m_cell.setFont(faceFont);
    setText(m_cell.title());
    setAttribute(Qt::WA_Hover);
}

QSize ConvertPopupButton::sizeHint() const
{
    const QSize text = fontMetrics().size(Qt::TextSingleLine, m_cell.title());
    const int line = fontMetrics().height();
    return { text.width() + line * 7, line * 2 + 6 };
}

bool ConvertPopupButton::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        m_cell.setFont(font());
        updateGeometry();
    }
    return QPushButton::event(event);
}

QColor ConvertPopupButton::faceColor() const
{
    if (!isEnabled())
        return palette().color(QPalette::Disabled, QPalette::Button);
    const QColor accent = palette().color(QPalette::Highlight);
    const bool pressed = isDown() || (menu() && menu()->isVisible());
    if (pressed)
        return accent.darker(118);
    return underMouse() ? accent.lighter(108) : accent;
}

void ConvertPopupButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(rect()).adjusted(3, 3, -3, -3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(faceColor());
    painter.drawRoundedRect(face, 8, 8);
    Clickable::paintFocus(painter, *this);
    painter.setPen(palette().color(isEnabled() ? QPalette::HighlightedText : QPalette::ButtonText));
    painter.setFont(m_cell.font().value_or(font()));
    painter.drawText(m_cell.titleRectForBounds(rect()), Qt::AlignCenter, m_cell.title());
    paintIndicator(painter);
}

void ConvertPopupButton::paintIndicator(QPainter &painter)
{
    const double arrow = fontMetrics().height() * 0.24;
    const double inset = fontMetrics().height() * 1.3;
    QPen pen = painter.pen();
    pen.setWidthF(1.8);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    const double titleCentre = m_cell.titleRectForBounds(rect()).center().y();
    const bool leftToRight = layoutDirection() == Qt::LeftToRight;
    painter.translate(leftToRight ? width() - inset : inset, titleCentre);
    const QPointF down[] = { { -arrow, -arrow / 2 }, { 0, arrow / 2 }, { arrow, -arrow / 2 } };
    painter.drawPolyline(down, 3);
}
