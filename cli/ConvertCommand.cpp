// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ConversionItem.h"
#include "cli/Examination.h"
#include "cli/report/Diagnostics.h"
#include "cli/report/Output.h"
#include "cli/report/Reporter.h"
#include "engine/Destination.h"
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/Tool.h"
#include "support/Interruption.h"
#include "support/MainQueue.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace {

class Conversion {
public:
    Conversion(const ConversionItem &item, Reporter &reporter)
        : m_item(item)
        , m_reporter(reporter)
    {
    }

    Outcome run(const VideoConstraints &entry, const JSON &info, Interruption &interruption);

private:
    void wait(Interruption &interruption);
    [[nodiscard]] Outcome outcome() const;

    const ConversionItem &m_item;
    Reporter &m_reporter;
    QElapsedTimer m_clock;
    std::shared_ptr<Progress> m_progress;
};

Outcome Conversion::run(const VideoConstraints &entry, const JSON &info, Interruption &interruption)
{
    m_clock.start();
    m_reporter.started(m_item);
    m_progress
        = FFMPEG::convertFile(m_item.path, m_item.destPath, entry, info, [](const auto &) {});
    wait(interruption);
    Outcome result = outcome();
    if (result.isDone())
        m_reporter.converted(m_item, std::chrono::milliseconds(m_clock.elapsed()));
    return result;
}

void Conversion::wait(Interruption &interruption)
{
    QEventLoop loop;
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

Outcome Conversion::outcome() const
{
    Outcome outcome = m_progress->outcome();
    const OutcomeKind kind = kindOf(outcome);
    // The terminal's Ctrl-C reaches the tool as well, which may fail because of it.
    if (kind == OutcomeKind::Failed && Interruption::signal() != 0)
        return { Reason::Cancelled };
    // The engine prints the output of a failed tool itself, unless it can't be decoded.
    const QByteArray output = m_progress->toolOutput();
    if (kind == OutcomeKind::Incomplete
        || (kind == OutcomeKind::Failed && Text::stringValue(output).isEmpty()))
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
    // A run whose tool can't be launched removes what stands at its destination.
    if (const auto refusal = toolRefusal(Tool::Ffmpeg))
        return *refusal;
    const auto video = examined(item.path, Cover::LeftOut, interruption);
    if (const auto *refusal = std::get_if<Outcome>(&video))
        return *refusal;
    if (!line.overwrite) {
        if (const auto refusal = createResultFile(item.destPath))
            return *refusal;
    }
    return Conversion(item, reporter)
        .run(line.entries.front(), std::get<VideoDescription>(video).info, interruption);
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
    for (const ConversionItem &item : items) {
        const Outcome outcome = converted(item, line, others, *reporter, interruption);
        if (outcome.isDone())
            ++done;
        else
            reporter->failed(item, outcome);
        if (result == ExitCode::Done)
            result = exitCodeOf(kindOf(outcome));
        if (endsAll(outcome))
            break;
    }
    if (items.size() > 1)
        reporter->summedUp(done, static_cast<int>(items.size()));
    return result;
}
