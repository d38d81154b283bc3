// SPDX-License-Identifier: MIT
#include "engine/ConversionRun.h"

#include "engine/Async.h"
#include "engine/Destination.h"
#include "engine/MovieProbe.h"
#include "engine/RunReport.h"
#include "engine/Task.h"
#include "planning/ConversionDescriptor.h"
#include "support/Console.h"
#include "support/Text.h"

#include <QFile>

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
    , m_ownLines({ m_job.path, m_job.destPath })
{
}

void ConversionRun::run()
{
    // The tool would empty a source that is its own destination, and the clean-up would remove it.
    if (const auto refusal
        = refusalOf({ .path = m_job.destPath, .sources = { m_job.path }, .overwrite = true })) {
        end(*refusal);
        postError(sentenceOf(*refusal));
    } else {
        Task task;
        if (launch(task)) {
            follow(task);
            judge(task);
            finish(task);
        }
    }
    m_progress->end();
}

bool ConversionRun::launch(Task &task)
{
    task.setLaunchPath(toolPath(Tool::Ffmpeg));
    task.setArguments(conversionArguments(m_job));
    // The tool may write this file, but create none.
    QFile(m_job.destPath).open(QIODevice::ReadWrite);
    task.setAccess({ MovieProbe::readPaths(m_job.path), { m_job.destPath } });
    LaunchError error;
    if (task.tryLaunch(&error))
        return true;
    Console::print(u"something bad happened: "_s + error.localizedDescription);
    end(missingTool(Tool::Ffmpeg));
    m_progress->cancel();
    QFile::remove(m_job.destPath);
    return false;
}

void ConversionRun::follow(Task &task)
{
    while (task.isRunning() && !m_progress->isCancelled()) {
        readChunk(task.availableData());
        if (task.isSilentForTooLong())
            task.terminate();
    }
    Console::print(u"last delta: "_s + QString::number(m_lastDelta) + u", last pos: "_s
        + QString::number(m_progress->totalUnitCount() - m_progress->completedUnitCount()));
}

void ConversionRun::readChunk(const QByteArray &chunk)
{
    m_output += chunk;
    const QString text = ToolOutput::decodedBlock(m_ownLines.in(chunk));
    if (m_progress->totalUnitCount() < 0) {
        m_scanner.append(text);
        if (const std::optional<qint64> duration = m_scanner.duration())
            m_progress->setTotalUnitCount(*duration);
    }
    const auto position = ToolOutput::lastReportedPosition(text);
    if (!position)
        return;
    m_progress->setPosition(*position);
    const qint64 total = m_progress->totalUnitCount();
    if (total <= 0)
        return;
    const qint64 completed = std::min(*position, total);
    m_lastDelta = m_progress->completedUnitCount() - completed;
    m_progress->setCompletedUnitCount(completed);
}

// A tool that ends well but leaves more than its last progress step can explain stopped short.
void ConversionRun::judge(const Task &task)
{
    if (m_progress->isCancelled())
        return end({ Reason::Cancelled });
    if (task.isSilentForTooLong())
        return end({ Reason::ToolSilent });
    if (task.terminationStatus() != 0
        || reportsLostOutput(m_output, { m_job.path, m_job.destPath }))
        return end(toolFailure(m_output));
    const qint64 completed = m_progress->completedUnitCount();
    const qint64 remaining = m_progress->totalUnitCount() - completed;
    const qint64 step = std::abs(m_lastDelta);
    if (static_cast<double>(step) * 2.2 >= static_cast<double>(remaining))
        return end({});
    Console::print(u"conversion of bad file, not all length has been processed"_s);
    end({ .reason = Reason::Incomplete, .seconds = completed });
}

void ConversionRun::finish(Task &task)
{
    switch (kindOf(m_progress->outcome())) {
    case OutcomeKind::Incomplete:
        postError(sentenceOf(m_progress->outcome()));
        [[fallthrough]];
    case OutcomeKind::Done:
        m_progress->setCompletedUnitCount(m_progress->totalUnitCount());
        break;
    case OutcomeKind::Cancelled:
        // A tool that is stopped while it starts still creates its output: wait for its end first.
        task.terminate();
        QFile::remove(m_job.destPath);
        break;
    default:
        Console::print(u"error occured: "_s + Text::stringValue(m_output));
        postError(std::nullopt);
        QFile::remove(m_job.destPath);
    }
}

void ConversionRun::end(const Outcome &outcome) { m_progress->setOutcome(outcome, m_output); }

void ConversionRun::postError(const std::optional<QString> &errmsg) const
{
    Async::async([handler = m_errorHandler, errmsg] { handler(errmsg); });
}
