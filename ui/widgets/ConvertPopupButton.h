// SPDX-License-Identifier: MIT
#pragma once

#include "ui/widgets/ConvertPopupButtonCell.h"

#include <QPushButton>

/// Opens the format menu; its face is drawn by its cell.
class ConvertPopupButton : public QPushButton {
    Q_OBJECT

public:
    explicit ConvertPopupButton(QWidget *parent = nullptr);

    [[nodiscard]] ConvertPopupButtonCell &cell() { return m_cell; }

    /// The menu stands beside the face, above or below, and scrolls where it finds no room.
    void setMenu(QMenu *menu);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void openMenu();
    [[nodiscard]] QColor faceColor() const;
    void paintIndicator(QPainter &painter);

    ConvertPopupButtonCell m_cell;
    QRect m_menuPlace;
};
