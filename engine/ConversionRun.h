// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/ToolOutput.h"

#include <QStringList>

class Task;

struct ConversionJob {
    QString path;
    QString destPath;
    VideoConstraints constraints;
    JSON conversionInfo = {};
};

/// The complete argument list of the tool for a conversion. Thread: any.
[[nodiscard]] QStringList conversionArguments(const ConversionJob &job);

/// One run of the tool: follows its output, judges its end, removes what must not stay. Thread: the
/// run's own; `errorHandler` is posted to the main thread.
class ConversionRun {
public:
    ConversionRun(ConversionJob job, std::shared_ptr<Progress> progress,
        FFMPEG::ConversionErrorHandler errorHandler);

    void run();

private:
    bool launch(Task &task);
    void follow(Task &task);
    void readChunk(const QByteArray &chunk);
    void judge(const Task &task);
    void finish(Task &task);
    void end(const Outcome &outcome);
    void postError(const std::optional<QString> &errmsg) const;

    ConversionJob m_job;
    std::shared_ptr<Progress> m_progress;
    FFMPEG::ConversionErrorHandler m_errorHandler;
    QByteArray m_output;
    ToolOutput::OwnLines m_ownLines;
    DurationScanner m_scanner;
    qint64 m_lastDelta = 0;
};
