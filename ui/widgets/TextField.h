// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A label of plain text on one line. Where something listens to clicked(), it works as a button;
/// the dynamic property "_cursor" with the value "pointingHandCursor" shows that.
class TextField : public QLabel {
    Q_OBJECT
    Q_PROPERTY(bool elided MEMBER m_elided)
    Q_PROPERTY(bool dimmed MEMBER m_dimmed WRITE setDimmed)

public:
    explicit TextField(QWidget *parent = nullptr);

    void setDimmed(bool dimmed);

    void resetCursorRects();

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_elided = false;
    bool m_dimmed = false;
};
