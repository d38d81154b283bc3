// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// Shows a picture in proportion, either an image or a scalable drawing. Where something listens to
/// clicked(), it works as a button, by mouse and by keyboard. Thread: main.
class ImageView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString artwork READ artwork WRITE setArtwork)
    Q_PROPERTY(bool tinted READ isTinted WRITE setTinted)

public:
    explicit ImageView(QWidget *parent = nullptr);

    [[nodiscard]] const QImage &image() const { return m_image; }
    /// A null image shows none.
    void setImage(const QImage &image);
    /// Resource path of an SVG drawing, which shows when there is no image.
    [[nodiscard]] const QString &artwork() const { return m_artwork; }
    void setArtwork(const QString &resource);
    /// The drawing takes the colour of the text.
    [[nodiscard]] bool isTinted() const { return m_tinted; }
    void setTinted(bool tinted);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void paintArtwork(QPainter &painter);
    void paintImage(QPainter &painter);
    [[nodiscard]] const QPixmap &scaledImage(const QSize &deviceSize);

    QImage m_image;
    QPixmap m_scaled;
    QString m_artwork;
    QSizeF m_artworkSize;
    bool m_tinted = false;
};
