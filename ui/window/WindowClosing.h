// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class ConversionFlow;

/// Asks before the window closes over a conversion. It then closes by itself, when the tool is
/// gone and has removed its partial result.
class WindowClosing : public QObject {
public:
    WindowClosing(QMainWindow &window, ConversionFlow &conversion);

    void stayOpen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMainWindow &m_window;
    ConversionFlow &m_conversion;
    bool m_waits = false;
};
