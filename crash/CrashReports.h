// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkAccessManager>

#include <functional>

enum class SendReport { Yes, No, Always };

/// What the crash service is sent: reports, and how sessions begin and end; nothing without its
/// address or with DO_NOT_TRACK. The newest ten reports are kept. A file's name tells its state:
/// crash-….txt is new, .agreed.txt may be sent, then .sent.txt or .refused.txt. Thread: main.
class CrashReports {
public:
    using Question = std::function<SendReport(const QString &report)>;

    /// Asks about each new report, newest first; sends what may be sent, also earlier ones.
    void uploadPending(const Question &ask);
    /// Tells that a session starts and how the one before ended, if the user has agreed to
    /// everything being sent. The clean end is noted when the application is about to quit.
    void beginSession();

private:
    void sendEvent(const QString &event, const QString &session);
    void post(const QByteArray &text, const std::function<void()> &taken);

    QNetworkAccessManager m_network;
};
