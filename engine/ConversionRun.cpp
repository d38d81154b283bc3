// SPDX-License-Identifier: MIT
#include "engine/ConversionRun.h"

#include "engine/Async.h"
#include "engine/DestinationClaim.h"
#include "engine/Obstacle.h"
#include "engine/Task.h"
#include "engine/ToolOutput.h"
#include "planning/ConversionDescriptor.h"
#include "support/Bundle.h"
#include "support/Console.h"
#include "support/DurationInfo.h"
#include "support/FileSystem.h"
#include "support/Format.h"
#include "support/Localized.h"
#include "support/Text.h"

#include <QFile>
#include <QFileInfo>

#include <cstdlib>

using namespace Qt::StringLiterals;

QStringList conversionArguments(const ConversionJob &job)
{
    const ConversionDescriptor descriptor = conversionDescriptor(job.constraints.format);
    QStringList arguments{ u"-hide_banner"_s, u"-loglevel"_s, u"verbose"_s, u"-y"_s, u"-i"_s,
        job.path };
    arguments += descriptor.ffmpegArguments(
        job.path, job.destPath, job.conversionInfo, job.constraints.dimension);
    arguments += job.destPath;
    return arguments;
}

ConversionRun::ConversionRun(ConversionJob job, std::shared_ptr<Progress> progress,
    FFMPEG::ConversionErrorHandler errorHandler)
    : m_job(std::move(job))
    , m_progress(std::move(progress))
    , m_errorHandler(std::move(errorHandler))
{
}

void ConversionRun::run()
{
    // Where the user keeps a link, what it leads to is written, and removed after a failure.
    m_job.destPath = linkTarget(m_job.destPath);
    if (isSameFile(m_job.path, m_job.destPath)) {
        // The tool would empty the source before it read it, and the clean-up would remove it.
        postError(localized(
            QT_TRANSLATE_NOOP3("Localizable", "The result can't replace the video it is made from.",
                "Error message when source and destination are one file")));
    } else if (const std::optional<QString> obstacle = obstacleAt(m_job.destPath)) {
        postError(obstacle);
    } else {
        convert();
    }
    m_progress->end(m_output);
}

void ConversionRun::convert()
{
    const DestinationClaim claim(m_job.destPath, [this] { return m_progress->isCancelled(); });
    if (!claim.isHeld())
        return;
    Task task;
    const bool launched = launch(task);
    if (launched) {
        follow(task);
        judge(task);
    }
    finish(task, launched);
}

bool ConversionRun::launch(Task &task)
{
    task.setLaunchPath(Bundle::main().bundlePath() + u"/Contents/ffmpeg/ffmpeg"_s);
    task.setArguments(conversionArguments(m_job));
    task.setAccess({ { m_job.path }, { QFileInfo(m_job.destPath).path() } });
    LaunchError error;
    if (task.tryLaunch(&error))
        return true;
    Console::print(u"something bad happened: "_s + error.localizedDescription);
    m_progress->cancel();
    return false;
}

void ConversionRun::follow(Task &task)
{
    while (task.isRunning() && !m_progress->isCancelled()) {
        readChunk(task.availableData());
        if (task.isSilentForTooLong()) {
            m_output += "\nThe tool has been silent for too long and was stopped.\n";
            task.terminate();
        }
    }
    Console::print(u"last delta: "_s + QString::number(m_lastDelta) + u", last pos: "_s
        + QString::number(m_progress->totalUnitCount() - m_progress->completedUnitCount()));
}

void ConversionRun::readChunk(const QByteArray &chunk)
{
    m_output += chunk;
    const QString text = ToolOutput::decodedBlock(chunk);
    if (m_progress->totalUnitCount() < 0) {
        m_scanner.append(text);
        if (const std::optional<qint64> duration = m_scanner.duration())
            m_progress->setTotalUnitCount(*duration);
    }
    const qint64 total = m_progress->totalUnitCount();
    if (text.isEmpty() || total <= 0)
        return;
    if (const std::optional<qint64> position = ToolOutput::lastReportedPosition(text)) {
        const qint64 completed = std::min(*position, total);
        m_lastDelta = m_progress->completedUnitCount() - completed;
        m_progress->setCompletedUnitCount(completed);
    }
}

// A tool that ends well although more is left than the last step of its reports can explain has
// stopped short.
void ConversionRun::judge(const Task &task)
{
    if (m_progress->isCancelled() || !hasSucceeded(task))
        return;
    const qint64 completed = m_progress->completedUnitCount();
    const qint64 remaining = m_progress->totalUnitCount() - completed;
    const qint64 step = std::abs(m_lastDelta);
    if (static_cast<double>(step) * 2.2 >= static_cast<double>(remaining))
        return;
    Console::print(u"conversion of bad file, not all length has been processed"_s);
    const QString format
        = localized(QT_TRANSLATE_NOOP3("Localizable", "The converting progress was finished at %@",
            "Error message format string when file has not been converted at full length"));
    postError(formatted(format, { DurationInfo(completed).toString() }));
}

bool ConversionRun::hasSucceeded(const Task &task) const
{
    return task.terminationStatus() == 0
        && !ToolOutput::reportsLostOutput(m_output, { m_job.path, m_job.destPath });
}

void ConversionRun::finish(Task &task, bool launched)
{
    // Read once: a cancel that comes while this goes on must not meet half of each branch.
    const bool cancelled = m_progress->isCancelled();
    if (cancelled) {
        // A tool that is told to stop in its first moments still creates its output, so it is gone
        // before that is removed.
        task.terminate();
        removeDestination();
    } else if (launched && hasSucceeded(task)) {
        m_progress->setCompletedUnitCount(m_progress->totalUnitCount());
    } else {
        Console::print(u"error occured: "_s + Text::stringValue(m_output));
        postError(std::nullopt);
        removeDestination();
    }
    task.closeFile();
}

void ConversionRun::postError(const std::optional<QString> &errmsg)
{
    m_progress->setToolOutput(m_output);
    Async::async([handler = m_errorHandler, errmsg] { handler(errmsg); });
}

void ConversionRun::removeDestination() const { QFile::remove(m_job.destPath); }
