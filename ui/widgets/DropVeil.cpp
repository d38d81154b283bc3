// SPDX-License-Identifier: MIT
#include "ui/widgets/DropVeil.h"

#include <QPainter>

DropVeil::DropVeil(QWidget *target)
    : QWidget(target)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropVeil::cover(const QWidget &target, const QString &text, bool isWelcome)
{
    m_text = text;
    m_isWelcome = isWelcome;
    setAccessibleName(text);
    setGeometry(target.rect());
    raise();
    show();
    update();
}

void DropVeil::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::Window);
    ground.setAlphaF(0.94F);
    painter.fillRect(rect(), ground);
    const QColor ink = palette().color(m_isWelcome ? QPalette::Link : QPalette::PlaceholderText);
    QColor tint = ink;
    tint.setAlphaF(m_isWelcome ? 0.1F : 0.0F);
    painter.setBrush(tint);
    painter.setPen(QPen(ink, 3, m_isWelcome ? Qt::SolidLine : Qt::DotLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(8, 8, -8, -8), 14, 14);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * 1.45);
    larger.setWeight(QFont::DemiBold);
    painter.setFont(larger);
    painter.drawText(
        rect().adjusted(24, 24, -24, -24), int(Qt::AlignCenter) | Qt::TextWordWrap, m_text);
}
