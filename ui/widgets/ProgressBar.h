// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressBar>
#include <QTimeLine>

/// A slim bar over a fraction of 0 to 1; busy while that is unknown.
class ProgressBar : public QProgressBar {
    Q_OBJECT

public:
    explicit ProgressBar(QWidget *parent = nullptr);

    /// Negative while the length of the work is unknown.
    void setFraction(double fraction);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] bool isBusy() const { return maximum() == 0; }

    QTimeLine m_busyTurn;
};
