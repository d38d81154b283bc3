// SPDX-License-Identifier: MIT
#include "ui/widgets/ImageView.h"

#include "ui/widgets/Clickable.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

namespace {

constexpr double cornerRadius = 12;
/// Height of a line of text for which drawings have their own size.
constexpr double referenceTextHeight = 17;

QRectF centred(const QSizeF &size, const QRectF &area)
{
    // Between two pixels, a texture's edges run into each other.
    return { (area.center() - QPointF(size.width(), size.height()) / 2).toPoint(), size };
}

}

QPixmap drawnArtwork(const QString &resource, QSize size)
{
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    QSvgRenderer(resource).render(&painter);
    return drawn;
}

QPixmap tintedArtwork(const QString &resource, QSize size, const QColor &color)
{
    QPixmap tinted = drawnArtwork(resource, size);
    QPainter painter(&tinted);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(tinted.rect(), color);
    return tinted;
}

ImageView::ImageView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_Hover);
}

void ImageView::setImage(const QImage &image)
{
    m_image = image;
    m_scaled = {};
    update();
}

void ImageView::setArtwork(const QString &resource)
{
    m_artwork = resource;
    m_artworkSize = resource.isEmpty() ? QSizeF() : QSvgRenderer(resource).defaultSize();
    updateGeometry();
    update();
}

QSize ImageView::sizeHint() const
{
    return (m_artworkSize * (fontMetrics().height() / referenceTextHeight)).toSize();
}

bool ImageView::event(QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_pressedAt = static_cast<QMouseEvent *>(event)->pos();
    if (Clickable::isPressed(*this, *event)) {
        Q_EMIT clicked();
        return true;
    }
    return QWidget::event(event);
}

void ImageView::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->pos() - m_pressedAt).manhattanLength();
    if ((event->buttons() & Qt::LeftButton) && distance >= QApplication::startDragDistance())
        Q_EMIT dragged();
}

void ImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (!m_image.isNull())
        paintImage(painter);
    else if (!m_artwork.isEmpty())
        paintArtwork(painter);
    Clickable::paintFocus(painter, *this);
}

void ImageView::paintArtwork(QPainter &painter)
{
    const QSizeF room = this->size().boundedTo(sizeHint());
    const QSizeF size = m_artworkSize.scaled(room, Qt::KeepAspectRatio);
    const QRectF target = centred(size, rect());
    if (!m_tinted)
        return QSvgRenderer(m_artwork).render(&painter, target);
    const bool hovered = underMouse() && isEnabled();
    const QPixmap tinted = tintedArtwork(m_artwork, (size * devicePixelRatio()).toSize(),
        palette().color(hovered ? QPalette::Highlight : foregroundRole()));
    painter.drawPixmap(target, tinted, tinted.rect());
}

void ImageView::paintImage(QPainter &painter)
{
    const QSize deviceSize = (QSizeF(size()) * devicePixelRatio()).toSize();
    const QSize shown = m_image.size().scaled(deviceSize, Qt::KeepAspectRatio);
    if (m_scaled.size() != shown)
        m_scaled = QPixmap::fromImage(
            m_image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    const QRectF target = centred(QSizeF(shown) / devicePixelRatio(), rect());
    QPainterPath corners;
    corners.addRoundedRect(rect(), cornerRadius, cornerRadius);
    QPainterPath outline;
    outline.addRect(target);
    QBrush brush(m_scaled);
    brush.setTransform(QTransform::fromTranslate(target.x(), target.y())
                           .scale(1 / devicePixelRatio(), 1 / devicePixelRatio()));
    painter.fillPath(outline.intersected(corners), brush);
}
