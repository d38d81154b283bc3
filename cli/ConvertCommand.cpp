// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Examination.h"
#include "cli/report/Diagnostics.h"
#include "cli/report/Output.h"
#include "cli/report/Reporter.h"
#include "engine/Conversion.h"
#include "engine/Destination.h"
#include "engine/Progress.h"
#include "engine/SteadyTime.h"
#include "support/Interruption.h"
#include "support/MainQueue.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace {

/// Reports how a conversion goes until its tool is gone.
void follow(Progress &progress, const ConversionItem &item, Reporter &reporter,
    const QElapsedTimer &clock, Interruption &interruption)
{
    QEventLoop loop;
    progress.setEndHandler([&loop] { MainQueue::post([&loop] { loop.quit(); }); });
    QObject::connect(
        &interruption, &Interruption::arrived, &loop, [&progress] { progress.cancel(); });
    if (Interruption::signal() != 0)
        progress.cancel();
    QTimer timer;
    SteadyTime steadyTime;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        ProgressSample sample{ .completed = progress.completedUnitCount(),
            .total = progress.totalUnitCount(),
            .elapsed = std::chrono::milliseconds(clock.elapsed()) };
        sample.left = steadyTime.shown(sample.secondsLeft());
        reporter.progressed(item, sample);
    });
    timer.start(reporter.interval());
    loop.exec();
}

Outcome outcomeOf(const Progress &progress)
{
    Outcome outcome = progress.outcome();
    const bool hasFailed = kindOf(outcome) == OutcomeKind::Failed;
    // The terminal's Ctrl-C reaches the tool as well, which may fail because of it.
    if (hasFailed && Interruption::signal() != 0)
        return { Reason::Cancelled };
    // The engine prints the output of a failed tool itself, unless it can't be decoded.
    const QByteArray output = progress.toolOutput();
    if (!hasFailed || Text::stringValue(output).isEmpty())
        Diagnostics::write(output);
    return outcome;
}

Outcome converted(const ConversionItem &item, const CommandLine &line, const Destination &others,
    Reporter &reporter, Interruption &interruption)
{
    Destination destination = others;
    destination.path = item.destPath;
    if (const auto refusal = refusalOf(destination))
        return *refusal;
    const auto video = examined(item.path, Cover::LeftOut, interruption);
    if (const auto *refusal = std::get_if<Outcome>(&video))
        return *refusal;
    QElapsedTimer clock;
    clock.start();
    reporter.started(item);
    const auto progress = Conversion::start(
        { item.path, item.destPath, line.entries.front(), std::get<VideoDescription>(video).info },
        line.overwrite ? OlderFile::Replaced : OlderFile::Kept, [](const auto &) {});
    follow(*progress, item, reporter, clock, interruption);
    const Outcome outcome = outcomeOf(*progress);
    if (outcome.isDone())
        reporter.converted(item, outcome, std::chrono::milliseconds(clock.elapsed()));
    return outcome;
}

/// The other videos have no better chance.
bool endsAll(const Outcome &outcome)
{
    return Interruption::signal() != 0 || kindOf(outcome) == OutcomeKind::ToolMissing;
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
    Destination others{ .overwrite = line.overwrite };
    for (const ConversionItem &item : items) {
        others.sources << item.path;
        others.otherResults << item.destPath;
    }
    ExitCode result = ExitCode::Done;
    int done = 0;
    std::size_t tried = 0;
    for (const ConversionItem &item : items) {
        const Outcome outcome = converted(item, line, others, *reporter, interruption);
        ++tried;
        if (outcome.isDone())
            ++done;
        else
            reporter->failed(item, outcome);
        if (result == ExitCode::Done)
            result = exitCodeOf(kindOf(outcome));
        if (endsAll(outcome))
            break;
    }
    if (Interruption::signal() != 0 && tried < items.size())
        result = ExitCode::Cancelled;
    if (items.size() > 1)
        reporter->summedUp(done, static_cast<int>(items.size()));
    return result;
}
