// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressBar>

/// A slim bar over a fraction of 0 to 1; busy while the length of the work is unknown.
class ProgressBar : public QProgressBar {
    Q_OBJECT

public:
    explicit ProgressBar(QWidget *parent = nullptr);

    /// The value as it was set; what lies outside of 0 to 1 is bounded only where it is drawn.
    [[nodiscard]] double doubleValue() const { return m_doubleValue; }
    void setDoubleValue(double value);
    [[nodiscard]] bool isBusy() const { return maximum() == 0; }
    void setBusy(bool busy);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_doubleValue = 0;
    QTimer *m_busyTimer;
    int m_busyStep = 0;
};
