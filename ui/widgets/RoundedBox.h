// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFrame>

/// A box with round corners; a dashed outline invites drops.
class RoundedBox : public QFrame {
    Q_OBJECT
    Q_PROPERTY(bool dashed READ isDashed WRITE setDashed)
    Q_PROPERTY(QColor fill READ fill WRITE setFill)

public:
    using QFrame::QFrame;

    [[nodiscard]] bool isDashed() const { return m_dashed; }
    void setDashed(bool dashed);
    [[nodiscard]] const QColor &fill() const { return m_fill; }
    void setFill(const QColor &fill);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_fill;
    bool m_dashed = false;
};
