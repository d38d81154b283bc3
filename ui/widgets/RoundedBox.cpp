// SPDX-License-Identifier: MIT
#include "ui/widgets/RoundedBox.h"

#include <QPainter>

void RoundedBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_fill.isValid() ? m_fill : palette().color(QPalette::Base));
    const QColor ink = palette().color(QPalette::PlaceholderText);
    // Round caps on hundreds of dashes would take a quarter of a MiB, and nobody sees them.
    painter.setPen(m_dashed ? QPen(ink, 1.5, Qt::DashLine, Qt::FlatCap) : QPen(Qt::NoPen));
    const double inset = m_dashed ? 1 : 0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 12, 12);
}
