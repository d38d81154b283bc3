// SPDX-License-Identifier: MIT
#include "ui/window/ConversionStatus.h"

#include "support/DurationInfo.h"
#include "support/Format.h"
#include "support/Localized.h"

#include <QGuiApplication>
#include <QLabel>

using namespace std::chrono_literals;

ConversionStatus::ConversionStatus(QWidget *window, QLabel *timeLeftLabel)
    : m_window(window)
    , m_timeLeftLabel(timeLeftLabel)
    , m_title(window->windowTitle())
{
    m_timer.setInterval(500ms);
    connect(&m_timer, &QTimer::timeout, this, &ConversionStatus::showTimeLeft);
    connect(&m_notification, &DesktopNotification::activated, this,
        &ConversionStatus::notificationActivated);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
        [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive && !m_timer.isActive())
                m_launcher.clear();
        });
}

void ConversionStatus::stateChanged(WindowUIState from, WindowUIState to)
{
    if (to == WindowUIState::Converting)
        start();
    else if (from == WindowUIState::Converting)
        stop();
    if (to == WindowUIState::ConversionIsDone && !m_window->isActiveWindow())
        m_launcher.finish();
    if (to == WindowUIState::WaitingForCover || to == WindowUIState::Converting)
        m_notification.close();
}

void ConversionStatus::start()
{
    m_timeLeft = {};
    m_steadyTime = {};
    m_fraction = -1;
    m_clock.start();
    m_timer.start();
    m_keepAwake.start(localized(
        QT_TRANSLATE_NOOP3("Localizable", "Converting a video", "why the machine stays awake")));
}

void ConversionStatus::stop()
{
    m_timer.stop();
    m_keepAwake.stop();
    m_launcher.clear();
    m_percent = -1;
    m_window->setWindowTitle(m_title);
    m_timeLeftLabel->clear();
}

void ConversionStatus::setFraction(double fraction)
{
    m_fraction = fraction;
    const int percent = static_cast<int>(fraction * 100);
    if (fraction >= 0 && m_timer.isActive() && percent != m_percent)
        showPercent(percent);
}

void ConversionStatus::showPercent(int percent)
{
    m_percent = percent;
    m_launcher.show(m_fraction);
    m_window->setWindowTitle(
        formatted(QT_TRANSLATE_NOOP3("Localizable", "%d%% – %@",
                      "window title while converting: percentage, program name"),
            { qint64(percent), m_title }));
    showTimeLeft();
}

void ConversionStatus::showTimeLeft()
{
    if (m_percent < 0)
        return;
    m_timeLeft.add(std::chrono::milliseconds(m_clock.elapsed()), m_fraction);
    const auto estimate = m_timeLeft.estimate();
    const auto left
        = m_steadyTime.shown(estimate ? std::optional<qint64>(estimate->count()) : std::nullopt);
    const QString text = left
        ? formatted(QT_TRANSLATE_NOOP3("Localizable", "%d%%, about %@ left",
                        "percentage converted and time left, such as 1m 30s"),
            { qint64(m_percent), DurationInfo(*left).toString() })
        : formatted(QT_TRANSLATE_NOOP3("Localizable", "%d%%", "percentage converted"),
            { qint64(m_percent) });
    if (text != m_timeLeftLabel->text())
        m_timeLeftLabel->setText(text);
}

void ConversionStatus::notify(const QString &title, const QString &text)
{
    if (!m_window->isActiveWindow())
        m_notification.show(title, text);
}
