// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Lies over a drop target while something is dragged over it, and says what a drop would do.
class DropVeil : public QWidget {
    Q_OBJECT

public:
    explicit DropVeil(QWidget *target);

    void cover(const QWidget &target, const QString &text, bool isWelcome);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    bool m_isWelcome = false;
};
