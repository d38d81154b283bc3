// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

/// Shows that work of unknown length goes on. Paints nothing while it does not spin.
class SpinningView : public QWidget {
    Q_OBJECT

public:
    explicit SpinningView(QWidget *parent = nullptr);

    [[nodiscard]] bool spinning() const { return m_spinning; }
    void setSpinning(bool spinning);
    [[nodiscard]] const QColor &spinColor() const { return m_spinColor; }
    void setSpinColor(const QColor &color);

    /// Called once when the view is about to be shown first; before that nothing moves.
    void awakeFromNib();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *) override { awakeFromNib(); }
    void paintEvent(QPaintEvent *event) override;

private:
    void animate();

    QTimer m_timer;
    QColor m_spinColor = Qt::black;
    int m_step = 0;
    bool m_spinning = false;
    bool m_awake = false;
};
