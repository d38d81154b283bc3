// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

/// A box with round corners, filled with its background colour; a dashed outline invites drops.
/// Thread: main.
class RoundedBox : public QFrame {
    Q_OBJECT
    Q_PROPERTY(bool dashed READ isDashed WRITE setDashed)

public:
    using QFrame::QFrame;

    [[nodiscard]] bool isDashed() const { return m_dashed; }
    void setDashed(bool dashed);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_dashed = false;
};
