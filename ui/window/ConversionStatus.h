// SPDX-License-Identifier: MIT
#pragma once

#include "engine/SteadyTime.h"
#include "ui/desktop/DesktopNotification.h"
#include "ui/desktop/KeepAwake.h"
#include "ui/desktop/LauncherProgress.h"
#include "ui/window/TimeLeft.h"
#include "ui/window/WindowUIState.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QLabel;

/// Tells of a conversion outside of the bar: title, task bar, time left, notification; and keeps
/// the machine awake for it.
class ConversionStatus : public QObject {
    Q_OBJECT

public:
    ConversionStatus(QWidget *window, QLabel *timeLeftLabel);

    void stateChanged(WindowUIState from, WindowUIState to);
    /// A fraction of 0 to 1, negative while the length is unknown.
    void setFraction(double fraction);
    /// Tells the user, unless the window is in front.
    void notify(const QString &title, const QString &text);

Q_SIGNALS:
    void notificationActivated();

private:
    void start();
    void stop();
    void showPercent(int percent);
    void showTimeLeft();

    QWidget *m_window;
    QLabel *m_timeLeftLabel;
    QString m_title;
    QTimer m_timer;
    QElapsedTimer m_clock;
    TimeLeft m_timeLeft;
    SteadyTime m_steadyTime;
    double m_fraction = -1;
    int m_percent = -1;
    KeepAwake m_keepAwake;
    LauncherProgress m_launcher;
    DesktopNotification m_notification;
};
