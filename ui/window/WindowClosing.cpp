// SPDX-License-Identifier: MIT
#include "ui/window/WindowClosing.h"

#include "ui/window/ConversionFlow.h"

WindowClosing::WindowClosing(QWidget &window, ConversionFlow &conversion)
    : m_window(window)
    , m_conversion(conversion)
{
}

bool WindowClosing::mayCloseNow()
{
    if (m_conversion.isShown() && m_conversion.isRunning() && !m_conversion.cancelIfConfirmed())
        return false;
    // A cancelled run still removes its partial result.
    m_closesAfterRun = m_conversion.isRunning();
    m_window.setEnabled(!m_closesAfterRun);
    return !m_closesAfterRun;
}

void WindowClosing::stayOpen()
{
    m_closesAfterRun = false;
    m_window.setEnabled(true);
}

void WindowClosing::closeIfAsked()
{
    if (m_closesAfterRun && m_conversion.isOver())
        m_window.close();
}
