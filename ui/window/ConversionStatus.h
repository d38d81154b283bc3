// SPDX-License-Identifier: MIT
#pragma once

#include "engine/TimeLeft.h"
#include "ui/desktop/DesktopNotification.h"
#include "ui/desktop/LauncherProgress.h"
#include "ui/window/WindowUIState.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

class QLabel;

/// Shows a conversion's work beside the bar, and keeps the machine awake for it.
class ConversionStatus : public QObject {
    Q_OBJECT

public:
    ConversionStatus(QWidget *window, QLabel *workLabel);

    void stateChanged(WindowUIState from, WindowUIState to);
    void setWork(const QString &work);
    /// A fraction of 0 to 1, negative while the length is unknown; seconds of the video.
    void setProgress(double fraction, qint64 seconds);
    /// Tells the user, unless the window is in front.
    void notify(const QString &title, const QString &text);

Q_SIGNALS:
    void notificationActivated();

private:
    void showWork();
    [[nodiscard]] QString speed() const;
    [[nodiscard]] QString timeLeft();

    QWidget *m_window;
    QLabel *m_workLabel;
    QString m_title;
    QString m_work;
    QTimer m_timer;
    QElapsedTimer m_clock;
    TimeLeft m_timeLeft;
    double m_fraction = -1;
    qint64 m_seconds = 0;
    int m_percent = -1;
    std::shared_ptr<void> m_keepAwake;
    LauncherProgress m_launcher;
    DesktopNotification m_notification;
};
