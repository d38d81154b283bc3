// SPDX-License-Identifier: MIT
#include "ui/window/WindowClosing.h"

#include "ui/window/ConversionFlow.h"

#include <QEvent>

WindowClosing::WindowClosing(QMainWindow &window, ConversionFlow &conversion)
    : m_window(window)
    , m_conversion(conversion)
{
    m_window.installEventFilter(this);
    connect(&m_conversion, &ConversionFlow::ended, this, [this] {
        if (m_waits)
            m_window.close();
    });
}

void WindowClosing::stayOpen()
{
    m_waits = false;
    m_window.setEnabled(true);
}

bool WindowClosing::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    const bool isWanted = !m_conversion.isRunning() || m_conversion.cancelIfConfirmed();
    m_waits = isWanted && m_conversion.isRunning();
    m_window.setEnabled(!m_waits);
    event->setAccepted(isWanted && !m_waits);
    return !event->isAccepted();
}
