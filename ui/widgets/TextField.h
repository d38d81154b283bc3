// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A line of plain text; a button where clicked() is listened to. "_cursor" names its cursor.
class TextField : public QLabel {
    Q_OBJECT
    Q_PROPERTY(bool elided MEMBER m_elided)

public:
    explicit TextField(QWidget *parent = nullptr);

    void resetCursorRects();

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_elided = false;
};
