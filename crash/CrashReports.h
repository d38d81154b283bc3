// SPDX-License-Identifier: MIT
#pragma once

#include "crash/CrashService.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

enum class SendReport { Yes, No, Always };

/// The newest ten reports. A file's name tells its state: crash-….txt is new, .agreed.txt may be
/// sent but has not arrived, then there are .sent.txt and .refused.txt. Thread: main.
class CrashReports : public QObject {
    Q_OBJECT
public:
    using Question = std::function<SendReport(const QString &report)>;

    explicit CrashReports(QObject *parent = nullptr);

    /// Paths of the reports that the user has not been asked about, newest first.
    [[nodiscard]] QStringList pending() const;
    /// Asks about each pending report and sends those that may be, with those that did not arrive
    /// the last time. Does nothing without a service or with DO_NOT_TRACK.
    void uploadPending(const Question &ask);

private:
    void upload(const QString &path);

    CrashService m_service;
};
