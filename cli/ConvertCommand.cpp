// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Diagnostics.h"
#include "cli/Examination.h"
#include "cli/Output.h"
#include "cli/Reporter.h"
#include "cli/ToolFailure.h"
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "support/Format.h"
#include "support/Interruption.h"
#include "support/Localized.h"
#include "support/MainQueue.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// What the engine says of a run that went wrong; its message is absent when the tool failed.
struct RunFailure {
    std::optional<QString> errmsg;
};

Failure failureOf(const RunFailure &run, const Progress &progress)
{
    const QByteArray output = progress.toolOutput();
    // The engine's diagnostics hold the output of a tool that failed, unless it can't be decoded as
    // a whole.
    if (run.errmsg || Text::stringValue(output).isEmpty())
        Diagnostics::tell(output);
    if (!run.errmsg)
        return { ExitCode::ConversionFailed, toolFailureSentence(output) };
    return { ExitCode::ConversionFailed,
        formatted(localized(QT_TRANSLATE_NOOP3("Localizable", "%@; that much was kept.",
                      "After: The converting progress was finished at 12s")),
            { *run.errmsg }) };
}

/// One conversion from its start to its end for good.
class Conversion {
public:
    Conversion(const ConversionItem &item, Reporter &reporter)
        : m_item(item)
        , m_reporter(reporter)
    {
    }

    std::optional<Failure> run(
        const VideoConstraints &entry, const JSON &info, Interruption &interruption);

private:
    void wait(Interruption &interruption);
    [[nodiscard]] std::optional<Failure> outcome() const;

    const ConversionItem &m_item;
    Reporter &m_reporter;
    QElapsedTimer m_clock;
    std::shared_ptr<Progress> m_progress;
    std::optional<RunFailure> m_failure;
};

std::optional<Failure> Conversion::run(
    const VideoConstraints &entry, const JSON &info, Interruption &interruption)
{
    m_clock.start();
    m_reporter.started(m_item);
    m_progress = FFMPEG::convertFile(m_item.path, m_item.destPath, entry, info,
        [this](const std::optional<QString> &errmsg) { m_failure = RunFailure{ errmsg }; });
    wait(interruption);
    std::optional<Failure> failure = outcome();
    if (!failure)
        m_reporter.converted(m_item, std::chrono::milliseconds(m_clock.elapsed()));
    return failure;
}

void Conversion::wait(Interruption &interruption)
{
    QEventLoop loop;
    // Posted, so that it comes after what the run has posted before.
    m_progress->setEndHandler([&loop] { MainQueue::post([&loop] { loop.quit(); }); });
    QObject::connect(
        &interruption, &Interruption::arrived, &loop, [this] { m_progress->cancel(); });
    if (Interruption::signal() != 0)
        m_progress->cancel();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [this] {
        m_reporter.progressed(m_item,
            { .completed = m_progress->completedUnitCount(),
                .total = m_progress->totalUnitCount(),
                .elapsed = std::chrono::milliseconds(m_clock.elapsed()) });
    });
    timer.start(m_reporter.interval());
    loop.exec();
}

std::optional<Failure> Conversion::outcome() const
{
    const bool interrupted = Interruption::signal() != 0;
    // The terminal's Ctrl-C reaches the tool as well, which may fail of it before it is cancelled.
    if (interrupted && (m_progress->isCancelled() || m_failure))
        return cancelledFailure();
    if (m_failure)
        return failureOf(*m_failure, *m_progress);
    if (m_progress->isCancelled())
        return Failure{ ExitCode::ToolsMissing,
            localized(QT_TRANSLATE_NOOP3("Localizable",
                "The tool that converts videos can't be started.", "Why a conversion failed")) };
    return std::nullopt;
}

std::optional<Failure> converted(const ConversionItem &item, const CommandLine &line,
    const std::vector<ConversionItem> &all, Reporter &reporter, Interruption &interruption)
{
    if (auto refusal = destinationRefusal(item.destPath, all, line.overwrite))
        return refusal;
    const auto video = examined(item.path, Cover::LeftOut, interruption);
    if (const auto *failure = std::get_if<Failure>(&video))
        return *failure;
    if (!line.overwrite) {
        if (auto refusal = takenMeanwhile(item.destPath))
            return refusal;
    }
    return Conversion(item, reporter)
        .run(line.entries.front(), std::get<VideoDescription>(video).info, interruption);
}

/// The other videos have no better chance.
bool endsAll(const std::optional<Failure> &failure)
{
    return Interruption::signal() != 0 || (failure && failure->code == ExitCode::ToolsMissing);
}

}

ExitCode convertVideos(const CommandLine &line, Interruption &interruption)
{
    if (!line.folder.isEmpty()) {
        if (const auto refusal = folderRefusal(absolutePath(line.folder)))
            return Output::failure(line.folder, *refusal);
    }
    const auto reporter = Reporter::suitable(line.json);
    const std::vector<ConversionItem> items = conversionItems(line);
    ExitCode result = ExitCode::Done;
    int done = 0;
    for (const ConversionItem &item : items) {
        const auto failure = converted(item, line, items, *reporter, interruption);
        if (failure)
            reporter->failed(item, *failure);
        else
            ++done;
        if (failure && result == ExitCode::Done)
            result = failure->code;
        if (endsAll(failure))
            break;
    }
    if (items.size() > 1)
        reporter->summedUp(done, static_cast<int>(items.size()));
    return result;
}
