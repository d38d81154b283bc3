// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFrame>

/// A box with round corners; a dashed outline invites drops.
class RoundedBox : public QFrame {
    Q_OBJECT
    Q_PROPERTY(bool dashed MEMBER m_dashed)
    Q_PROPERTY(QColor fill MEMBER m_fill)

public:
    using QFrame::QFrame;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_fill;
    bool m_dashed = false;
};
