// SPDX-License-Identifier: MIT
#include "ui/window/ConversionStatus.h"

#include "support/DurationInfo.h"
#include "support/Localized.h"
#include "ui/desktop/KeepAwake.h"
#include "ui/window/VideoWords.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// As wide as a digit and as a point, so that the line does not jump.
constexpr QChar figureSpace(0x2007);
constexpr QChar punctuationSpace(0x2008);

}

ConversionStatus::ConversionStatus(QWidget *window, QLabel *workLabel)
    : m_window(window)
    , m_workLabel(workLabel)
    , m_title(window->windowTitle())
{
    m_timer.setInterval(500ms);
    connect(&m_timer, &QTimer::timeout, this, &ConversionStatus::showWork);
    connect(&m_notification, &DesktopNotification::activated, this,
        &ConversionStatus::notificationActivated);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
        [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive && !m_timer.isActive())
                m_launcher.show({});
        });
}

void ConversionStatus::stateChanged(WindowUIState from, WindowUIState to)
{
    if (to == WindowUIState::Converting) {
        m_timeLeft = {};
        m_fraction = -1;
        m_clock.start();
        m_timer.start();
        showWork();
        m_keepAwake = keepAwake(localized(QT_TRANSLATE_NOOP3(
            "Localizable", "Converting a video", "why the machine stays awake")));
    } else if (from == WindowUIState::Converting) {
        m_timer.stop();
        m_keepAwake.reset();
        m_launcher.show({});
        m_percent = -1;
        m_window->setWindowTitle(m_title);
        m_workLabel->clear();
    }
    if (to == WindowUIState::ConversionIsDone && !m_window->isActiveWindow())
        m_launcher.show({}, true);
    if (to == WindowUIState::WaitingForCover || to == WindowUIState::Converting)
        m_notification.close();
}

void ConversionStatus::setWork(const QString &work)
{
    m_work = work;
    showWork();
}

void ConversionStatus::setProgress(double fraction, qint64 seconds)
{
    m_fraction = fraction;
    m_seconds = seconds;
    // A little more than nothing, as 0.29 times 100 is a little less than 29.
    const int percent = static_cast<int>(fraction * 100 + 1e-6);
    if (fraction < 0 || !m_timer.isActive() || percent == m_percent)
        return;
    m_percent = percent;
    m_launcher.show(percent);
    showWork();
}

QString ConversionStatus::timeLeft()
{
    const auto left = m_timeLeft.at(std::chrono::milliseconds(m_clock.elapsed()), m_fraction);
    return left ? formatted(QT_TRANSLATE_NOOP3("Localizable", "%@ left",
                                "time left of a conversion, such as 1m 30s"),
               { DurationInfo(*left).toString() })
                : QString();
}

QString ConversionStatus::speed() const
{
    const double speed = double(m_seconds) * 1000 / double(std::max<qint64>(m_clock.elapsed(), 1));
    const int decimals = speed < 9.95 ? 1 : 0;
    const int spaces = decimals == 0 && speed < 99.5 ? 1 : 0;
    return QString(spaces, punctuationSpace) + QLocale().toString(speed, 'f', decimals) + u'×';
}

void ConversionStatus::showWork()
{
    if (!m_timer.isActive())
        return;
    QString title = m_title;
    QStringList parts{ m_work };
    if (m_percent >= 0) {
        const QString percent
            = formatted(QT_TRANSLATE_NOOP3("Localizable", "%d%%", "percentage converted"),
                { qint64(m_percent) });
        parts << QString(m_percent < 10 ? 1 : 0, figureSpace) + percent;
        QStringList titleParts{ percent };
        if (const QString left = timeLeft(); !left.isEmpty()) {
            parts << speed() << left;
            titleParts << left;
        }
        title = formatted(
            QT_TRANSLATE_NOOP3("Localizable", "%@ – %@",
                "window title while converting: percentage and time left, program name"),
            { titleParts.join(u" · "_s), m_title });
    }
    m_window->setWindowTitle(title);
    m_workLabel->setText(VideoWords::joined(parts));
}

void ConversionStatus::notify(const QString &title, const QString &text)
{
    if (!m_window->isActiveWindow())
        m_notification.show(title, text);
}
