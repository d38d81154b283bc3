// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// An SVG drawing of the resources, in its own colours or in one. Units: pixels of the device.
[[nodiscard]] QPixmap drawnArtwork(const QString &resource, QSize size);
[[nodiscard]] QPixmap tintedArtwork(const QString &resource, QSize size, const QColor &color);

/// Shows an image or a scalable drawing in proportion; a button where clicked() is listened to.
class ImageView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString artwork MEMBER m_artwork WRITE setArtwork)
    Q_PROPERTY(bool tinted MEMBER m_tinted)

public:
    explicit ImageView(QWidget *parent = nullptr);

    [[nodiscard]] const QImage &image() const { return m_image; }
    void setImage(const QImage &image);
    /// Resource path of an SVG drawing, which shows when there is no image.
    void setArtwork(const QString &resource);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void clicked();
    /// The mouse moves on with its left button held.
    void dragged();

protected:
    bool event(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void paintArtwork(QPainter &painter);
    void paintImage(QPainter &painter);

    QImage m_image;
    QPixmap m_scaled;
    QString m_artwork;
    QSizeF m_artworkSize;
    bool m_tinted = false;
    QPoint m_pressedAt;
};
