// SPDX-License-Identifier: MIT
#include "ui/widgets/ProgressBar.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int steps = 10000;
constexpr int busyTurnMilliseconds = 1800;
constexpr double busyWidth = 0.3;

}

ProgressBar::ProgressBar(QWidget *parent)
    : QProgressBar(parent)
    , m_busyTurn(busyTurnMilliseconds)
{
    setRange(0, steps);
    setTextVisible(false);
    m_busyTurn.setLoopCount(0);
    m_busyTurn.setEasingCurve(QEasingCurve::Linear);
    connect(&m_busyTurn, &QTimeLine::valueChanged, this, qOverload<>(&QWidget::update));
}

void ProgressBar::setFraction(double fraction)
{
    const bool busy = fraction < 0;
    if (busy != isBusy()) {
        setRange(0, busy ? 0 : steps);
        busy ? m_busyTurn.start() : m_busyTurn.stop();
    }
    setValue(static_cast<int>(std::max(fraction, 0.0) * steps));
    // The base class would wait for a whole chunk of its style.
    update();
}

QSize ProgressBar::sizeHint() const
{
    return { fontMetrics().height() * 6, std::max(10, fontMetrics().height() / 2) };
}

void ProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double thickness = std::min(8.0, double(height()));
    const QRectF groove(0, (height() - thickness) / 2, width(), thickness);
    const double radius = thickness / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Mid));
    painter.drawRoundedRect(groove, radius, radius);
    painter.setBrush(palette().color(QPalette::Link));
    QRectF filled = groove;
    if (isBusy()) {
        filled.setWidth(groove.width() * busyWidth);
        filled.moveLeft(
            (groove.width() + filled.width()) * m_busyTurn.currentValue() - filled.width());
        filled = filled.intersected(groove);
    } else {
        filled.setWidth(groove.width() * value() / steps);
    }
    if (filled.width() < 1)
        return;
    if (layoutDirection() == Qt::RightToLeft)
        filled.moveRight(groove.width() - filled.left());
    painter.drawRoundedRect(
        filled.adjusted(0, 0, std::max(0.0, thickness - filled.width()), 0), radius, radius);
}
