// SPDX-License-Identifier: MIT
#include "engine/ConversionRun.h"

#include "engine/Async.h"
#include "engine/Destination.h"
#include "engine/MovieProbe.h"
#include "engine/RunReport.h"
#include "engine/Task.h"
#include "engine/ToolOutput.h"
#include "planning/ConversionDescriptor.h"
#include "support/Console.h"
#include "support/Text.h"

#include <QFile>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct Run {
    ConversionJob job;
    std::shared_ptr<Progress> progress;
    FFMPEG::ConversionErrorHandler errorHandler;
    QByteArray output = {};
    ToolOutput::OwnLines ownLines{ { job.path, job.destPath } };
    DurationScanner scanner = {};
    qint64 lastDelta = 0;

    void run()
    {
        // The tool would empty a source that is its own destination.
        if (const auto refusal
            = refusalOf({ .path = job.destPath, .sources = { job.path }, .overwrite = true })) {
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
        progress->end();
    }

    bool launch(Task &task)
    {
        task.setLaunchPath(toolPath(Tool::Ffmpeg));
        task.setArguments(conversionArguments(job));
        // The tool may write this file, but create none.
        QFile(job.destPath).open(QIODevice::ReadWrite);
        task.setAccess({ MovieProbe::readPaths(job.path), { job.destPath } });
        LaunchError error;
        if (task.tryLaunch(&error))
            return true;
        Console::print(u"something bad happened: "_s + error.localizedDescription);
        end(missingTool(Tool::Ffmpeg));
        progress->cancel();
        QFile::remove(job.destPath);
        return false;
    }

    void follow(Task &task)
    {
        while (task.isRunning() && !progress->isCancelled()) {
            readChunk(task.availableData());
            if (task.isSilentForTooLong())
                task.terminate();
        }
        Console::print(u"last delta: "_s + QString::number(lastDelta) + u", last pos: "_s
            + QString::number(progress->totalUnitCount() - progress->completedUnitCount()));
    }

    void readChunk(const QByteArray &chunk)
    {
        output += chunk;
        const QString text = ToolOutput::decodedBlock(ownLines.in(chunk));
        if (progress->totalUnitCount() < 0) {
            scanner.append(text);
            if (const std::optional<qint64> duration = scanner.duration())
                progress->setTotalUnitCount(*duration);
        }
        const auto position = ToolOutput::lastReportedPosition(text);
        if (!position)
            return;
        progress->setPosition(*position);
        const qint64 total = progress->totalUnitCount();
        if (total <= 0)
            return;
        const qint64 completed = std::min(*position, total);
        lastDelta = progress->completedUnitCount() - completed;
        progress->setCompletedUnitCount(completed);
    }

    // A tool that ends well but leaves more than its last progress step can explain stopped short.
    void judge(const Task &task)
    {
        if (progress->isCancelled())
            return end({ Reason::Cancelled });
        if (task.isSilentForTooLong())
            return end({ Reason::ToolSilent });
        if (task.terminationStatus() != 0 || reportsLostOutput(output, { job.path, job.destPath }))
            return end(toolFailure(output));
        const qint64 completed = progress->completedUnitCount();
        const qint64 remaining = progress->totalUnitCount() - completed;
        const qint64 step = std::abs(lastDelta);
        if (static_cast<double>(step) * 2.2 >= static_cast<double>(remaining))
            return end({});
        Console::print(u"conversion of bad file, not all length has been processed"_s);
        end({ .reason = Reason::Incomplete, .seconds = completed });
    }

    void finish(Task &task)
    {
        const Outcome outcome = progress->outcome();
        const OutcomeKind kind = kindOf(outcome);
        if (kind == OutcomeKind::Incomplete)
            postError(sentenceOf(outcome));
        if (kind == OutcomeKind::Incomplete || kind == OutcomeKind::Done)
            return progress->setCompletedUnitCount(progress->totalUnitCount());
        if (kind == OutcomeKind::Cancelled) {
            // A tool that is stopped while it starts still creates its output: wait for its end.
            task.terminate();
        } else {
            Console::print(u"error occured: "_s + Text::stringValue(output));
            postError(std::nullopt);
        }
        QFile::remove(job.destPath);
    }

    void end(const Outcome &outcome) { progress->setOutcome(outcome, output); }

    void postError(const std::optional<QString> &errmsg) const
    {
        Async::async([handler = errorHandler, errmsg] { handler(errmsg); });
    }
};

}

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

void runConversion(const ConversionJob &job, const std::shared_ptr<Progress> &progress,
    const FFMPEG::ConversionErrorHandler &errorHandler)
{
    Run{ job, progress, errorHandler }.run();
}
