// SPDX-License-Identifier: MIT
#include "ui/widgets/RoundedBox.h"

#include <QPainter>

void RoundedBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_fill.isValid() ? m_fill : palette().color(QPalette::Base));
    painter.setPen(Qt::NoPen);
    double inset = 0;
    if (m_dashed) {
        inset = 1;
        painter.setPen(
            QPen(palette().color(QPalette::PlaceholderText), 1.5, Qt::DashLine, Qt::RoundCap));
    }
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 12, 12);
}
