// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class ConversionFlow;

/// Asks before the window closes while a conversion runs, then waits until its tool is gone.
class WindowClosing {
public:
    WindowClosing(QWidget &window, ConversionFlow &conversion);
    Q_DISABLE_COPY_MOVE(WindowClosing)

    [[nodiscard]] bool mayCloseNow();
    void stayOpen();
    void closeIfAsked();

private:
    QWidget &m_window;
    ConversionFlow &m_conversion;
    bool m_closesAfterRun = false;
};
