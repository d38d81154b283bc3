// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class ConversionFlow;

/// Closes the window: asks first while a conversion runs, then waits until its tool is gone.
/// Thread: main.
class WindowClosing {
public:
    WindowClosing(QWidget &window, ConversionFlow &conversion);
    Q_DISABLE_COPY_MOVE(WindowClosing)

    /// Answers the user's wish to close; when it can't be met yet, closes later.
    [[nodiscard]] bool mayCloseNow();
    /// Takes the wish back.
    void stayOpen();
    /// Closes if a wish waits and nothing runs any more.
    void closeIfAsked();

private:
    QWidget &m_window;
    ConversionFlow &m_conversion;
    bool m_closesAfterRun = false;
};
