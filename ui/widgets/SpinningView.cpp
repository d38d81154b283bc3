// SPDX-License-Identifier: MIT
#include "ui/widgets/SpinningView.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int finCount = 12;
constexpr int stepMilliseconds = 80;

}

SpinningView::SpinningView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_timer.setInterval(stepMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_step = (m_step + 1) % finCount;
        update();
    });
}

void SpinningView::setSpinning(bool spinning)
{
    m_spinning = spinning;
    animate();
}

void SpinningView::setSpinColor(const QColor &color)
{
    m_spinColor = color;
    update();
}

void SpinningView::awakeFromNib()
{
    m_awake = true;
    animate();
}

QSize SpinningView::sizeHint() const
{
    const int side = fontMetrics().height() * 3;
    return { side, side };
}

void SpinningView::animate()
{
    const bool isTurning = m_spinning && m_awake;
    isTurning ? m_timer.start() : m_timer.stop();
    update();
}

void SpinningView::paintEvent(QPaintEvent *)
{
    if (!m_spinning)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(width(), height());
    painter.translate(width() / 2.0, height() / 2.0);
    painter.setPen(Qt::NoPen);
    const double thickness = side * 0.085;
    const QRectF fin(-thickness / 2, -side / 2, thickness, side * 0.26);
    for (int index = 0; index < finCount; ++index) {
        QColor color = m_spinColor;
        const int age = (m_step - index + finCount) % finCount;
        color.setAlphaF(std::max(0.12F, 1.0F - static_cast<float>(age) / finCount));
        painter.setBrush(color);
        painter.drawRoundedRect(fin, thickness / 2, thickness / 2);
        painter.rotate(360.0 / finCount);
    }
}
