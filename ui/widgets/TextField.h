// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A label of plain text on one line; what does not fit is elided in the middle. Where something
/// listens to clicked(), it works as a button, by mouse and by keyboard. The dynamic property
/// "_cursor" with the value "pointingHandCursor" shows that. Thread: main.
class TextField : public QLabel {
    Q_OBJECT
    Q_PROPERTY(bool elided READ isElided WRITE setElided)
    Q_PROPERTY(bool dimmed READ isDimmed WRITE setDimmed)

public:
    explicit TextField(QWidget *parent = nullptr);

    /// May get narrower than its text.
    [[nodiscard]] bool isElided() const { return m_elided; }
    void setElided(bool elided);
    /// Of less weight than the other texts.
    [[nodiscard]] bool isDimmed() const { return m_dimmed; }
    void setDimmed(bool dimmed);

    /// Applies "_cursor".
    void resetCursorRects();

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_elided = false;
    bool m_dimmed = false;
};
