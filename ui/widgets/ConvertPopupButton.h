// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QFont>
#include <QPushButton>
#include <QRectF>
#include <QString>

#include <optional>

/// The face of the convert button: the same word whatever menu item is chosen. Units: points.
class ConvertPopupButtonCell {
public:
    /// The text is not shown.
    ConvertPopupButtonCell(const QString &text, bool pullsDown);

    [[nodiscard]] const QString &overridenTitle() const { return m_overridenTitle; }
    [[nodiscard]] QString title() const { return m_overridenTitle; }
    void setTitle(const QString &) { }

    void setFont(const std::optional<QFont> &font) { m_font = font; }

    /// Where the word stands; the bounds themselves when they are not higher than the word.
    [[nodiscard]] QRectF titleRectForBounds(const QRectF &bounds) const;

private:
    QString m_overridenTitle;
    std::optional<QFont> m_font;
};

/// Opens the format menu; its face is drawn by its cell.
class ConvertPopupButton : public QPushButton {
    Q_OBJECT

public:
    explicit ConvertPopupButton(QWidget *parent = nullptr);

    /// The menu stands beside the face, above or below, and scrolls where it finds no room.
    void setMenu(QMenu *menu);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void openMenu();
    /// Highlights the entry that begins with what is typed. False for a key that types nothing.
    [[nodiscard]] bool lookUp(const QString &key);
    [[nodiscard]] QColor faceColor() const;
    void paintIndicator(QPainter &painter);

    ConvertPopupButtonCell m_cell;
    QRect m_menuPlace;
    QString m_typed;
    QDeadlineTimer m_typingEnd;
};
