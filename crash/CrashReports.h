// SPDX-License-Identifier: MIT
#pragma once

#include "crash/CrashService.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

/// What the user says when asked whether a report may be sent.
enum class SendReport { Yes, No, Always };

/// The reports of earlier crashes. They stay for the user to read, the newest ten; a file's name
/// tells what became of it: crash-….txt is new, crash-….agreed.txt may be sent but has not arrived,
/// then there are .sent.txt and .refused.txt. Thread: the main one.
class CrashReports : public QObject {
    Q_OBJECT
public:
    /// Gets the report's text; called once for each report.
    using Question = std::function<SendReport(const QString &report)>;

    /// Removes all but the newest ten.
    explicit CrashReports(QObject *parent = nullptr);

    /// Paths of the reports that the user has not been asked about, newest first.
    [[nodiscard]] QStringList pending() const;
    /// Asks about each pending report and sends those that may be, again those that did not arrive
    /// the last time. Does nothing where no service is configured or DO_NOT_TRACK is set.
    void uploadPending(const Question &ask);

private:
    void upload(const QString &path);

    CrashService m_service;
};
