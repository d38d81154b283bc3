// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Inputs.h"
#include "cli/report/Output.h"
#include "cli/report/Reporter.h"
#include "cli/report/ShownText.h"
#include "engine/Async.h"
#include "engine/Conversion.h"
#include "engine/Destination.h"
#include "engine/Remedy.h"
#include "engine/TimeLeft.h"
#include "engine/Verdict.h"
#include "support/Interruption.h"
#include "support/MainQueue.h"
#include "support/Path.h"
#include "support/Text.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <deque>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// What a folder holds beside videos is no failure; what is called a video and isn't one is.
bool isLeftOut(const Input &input, const Outcome &outcome)
{
    static const QSet<Reason> reasons{ Reason::NotMedia, Reason::NoDuration, Reason::TooShort,
        Reason::EmptyFile, Reason::NotRegularFile };
    return input.isFound && reasons.contains(outcome.reason) && !isCalledMedia(input.name);
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
        Output::diagnostics(output);
    return outcome;
}

/// Converts many videos, several side by side, and examines the next ones meanwhile. What one of
/// them comes to touches no other, except that a missing tool or an interruption ends all.
class Batch {
public:
    Batch(const CommandLine &line, std::vector<ConversionItem> items, Reporter &reporter)
        : m_line(line)
        , m_items(std::move(items))
        , m_reporter(reporter)
        // Encoders use several threads themselves: more jobs than cores only cost memory.
        , m_jobs(static_cast<std::size_t>(line.jobs > 0 ? line.jobs : QThread::idealThreadCount()))
    {
        m_sum.all = m_items.size();
        for (const ConversionItem &item : m_items) {
            m_others.sources.add(item.input.path);
            m_others.otherResults << item.destPath;
        }
    }
    Q_DISABLE_COPY_MOVE(Batch)

    /// An event loop runs inside.
    [[nodiscard]] ExitCode run(const Interruption &interruption)
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &m_loop, [this] { report(); });
        QObject::connect(&interruption, &Interruption::arrived, &m_loop, [this] { goOn(); });
        timer.start(m_reporter.interval());
        m_clock.start();
        MainQueue::post([this] { goOn(); });
        m_loop.exec();
        if (Interruption::signal() != 0 && m_items.size() == 1 && m_sum.ended() < m_sum.all)
            settle(m_items.front(), { Reason::Cancelled });
        if (Interruption::signal() != 0 && (m_isCancelled || m_sum.ended() < m_sum.all))
            m_code = ExitCode::Cancelled;
        // Those that stayed empty go; the others stay.
        for (const QString &folder : std::as_const(m_madeFolders))
            QDir().rmdir(folder);
        if (m_sum.all != 1 || m_line.hasList())
            m_reporter.summedUp(m_sum);
        return m_code;
    }

private:
    struct Video {
        const ConversionItem *item;
        JSON info;
        OlderFile olderFile;
        std::shared_ptr<Progress> progress = {};
        QElapsedTimer clock = {};
        TimeLeft timeLeft = {};
        qint64 lastReported = -1;
    };

    void goOn()
    {
        if (Interruption::signal() != 0)
            stop();
        while (!m_isStopped && m_running.size() < m_jobs && !m_ready.empty()) {
            start(std::move(m_ready.front()));
            m_ready.pop_front();
        }
        while (!m_isStopped && m_next < m_items.size() && m_examining + m_ready.size() < m_jobs)
            examine(m_items[m_next++]);
        // After an interruption, examinations are not waited for.
        const bool isWaiting = m_examining > 0 || !m_ready.empty() || m_next < m_items.size();
        if (m_running.empty() && (m_isStopped || !isWaiting))
            m_loop.quit();
    }

    [[nodiscard]] ConversionJob jobOf(const Video &video) const
    {
        return { video.item->input.path, video.item->destPath, m_line.entries.front(), video.info };
    }

    [[nodiscard]] std::optional<Outcome> refusalOfDestination(const ConversionItem &item) const
    {
        Destination destination = m_others;
        destination.path = item.destPath;
        destination.overwrite = m_line.overwrite || m_line.skipExisting;
        return refusalOf(destination);
    }

    void examine(const ConversionItem &item)
    {
        if (!item.input.refusal.isDone())
            return settle(item, item.input.refusal);
        if (!item.input.isFound) {
            if (const auto refusal = refusalOfDestination(item))
                return settle(item, *refusal);
        }
        ++m_examining;
        FFMPEG::collectMovieInfo(
            item.input.path,
            [this, &item](const Outcome &refusal) {
                --m_examining;
                // The same Ctrl-C may have stopped the tool: its refusal means nothing.
                if (Interruption::signal() == 0)
                    settle(item, refusal);
                goOn();
            },
            [this, &item](const JSON &info, const QImage &, const QString &) {
                --m_examining;
                if (!m_isStopped)
                    wasExamined(item, info);
                goOn();
            },
            Cover::LeftOut);
    }

    void wasExamined(const ConversionItem &item, const JSON &info)
    {
        if (item.input.isFound) {
            if (!isVideoOrMusic(info))
                return settle(item, { Reason::NotMedia });
            makeFolder(Path::stringByDeletingLastPathComponent(item.destPath));
            if (const auto refusal = refusalOfDestination(item))
                return settle(item, *refusal);
        }
        // What lies beside a video that was found may be the user's own.
        const bool isBeside = item.input.isFound
            && FileIds{ Path::stringByDeletingLastPathComponent(item.input.path) }.contains(
                Path::stringByDeletingLastPathComponent(item.destPath));
        const OlderFile replaced = isBeside ? OlderFile::SetAside : OlderFile::Replaced;
        const Video video{ &item, info, m_line.overwrite ? replaced : OlderFile::Kept };
        if (m_line.skipExisting && QFileInfo::exists(item.destPath))
            checkExisting(video);
        else
            m_ready.push_back(video);
    }

    /// The results' tree is made as far as it is needed.
    void makeFolder(const QString &path)
    {
        if (path.isEmpty() || QFileInfo::exists(path))
            return;
        makeFolder(Path::stringByDeletingLastPathComponent(path));
        if (QDir().mkdir(path))
            m_madeFolders.prepend(path);
    }

    void checkExisting(const Video &video)
    {
        ++m_examining;
        Async::background([this, video, looking = m_looking, job = jobOf(video)] {
            const bool isWhole = holdsWholeResult(job, *looking);
            MainQueue::post([this, video, isWhole] {
                --m_examining;
                if (isWhole) {
                    ++m_sum.skipped;
                    m_reporter.skipped(*video.item);
                } else {
                    // It may be no result at all, but dear to the user.
                    m_ready.push_back({ video.item, video.info, OlderFile::SetAside });
                }
                goOn();
            });
        });
    }

    void start(Video video)
    {
        // Another run that ended meanwhile may have taken an empty one for its own.
        if (video.item->input.isFound)
            makeFolder(Path::stringByDeletingLastPathComponent(video.item->destPath));
        m_reporter.started(*video.item);
        video.clock.start();
        video.progress = Conversion::start(jobOf(video), video.olderFile, [](const auto &) {});
        video.progress->setEndHandler(
            [this, item = video.item] { MainQueue::post([this, item] { hasEnded(*item); }); });
        m_running.emplace(video.item, std::move(video));
    }

    void report()
    {
        std::vector<RunningSample> samples;
        double fraction = 0;
        for (auto &[item, video] : m_running) {
            ProgressSample sample{ .completed = video.progress->completedUnitCount(),
                .total = video.progress->totalUnitCount(),
                .elapsed = std::chrono::milliseconds(video.clock.elapsed()) };
            const double part = video.progress->fractionCompleted();
            sample.left = video.timeLeft.at(sample.elapsed, part);
            fraction += part;
            samples.push_back({ *item, sample, video.lastReported });
        }
        // What was skipped took no time and says nothing about the rest.
        constexpr double parts = 1000;
        const auto done = static_cast<double>(m_sum.ended() - m_sum.skipped) + fraction;
        const auto all = static_cast<double>(m_sum.all - m_sum.skipped);
        ProgressSample whole{ .completed = static_cast<qint64>(done * parts),
            .total = static_cast<qint64>(all * parts),
            .elapsed = std::chrono::milliseconds(m_clock.elapsed()) };
        whole.left = m_timeLeft.at(whole.elapsed, done / all);
        m_reporter.progressed(samples, m_sum, whole);
    }

    void hasEnded(const ConversionItem &item)
    {
        const auto node = m_running.extract(&item);
        const Video &video = node.mapped();
        const Outcome outcome = outcomeOf(*video.progress);
        if (outcome.isDone()) {
            ++m_sum.converted;
            ConversionJob job = jobOf(video);
            for (const Remedy remedy : outcome.remedies)
                job = remedied(job, remedy);
            m_reporter.converted(item,
                { .outcome = outcome,
                    .work = plannedWork(job.constraints, job.conversionInfo),
                    .seconds = video.progress->totalUnitCount(),
                    .elapsed = std::chrono::milliseconds(video.clock.elapsed()) });
        } else {
            settle(item, outcome);
        }
        goOn();
    }

    void settle(const ConversionItem &item, const Outcome &outcome)
    {
        if (isLeftOut(item.input, outcome)) {
            --m_sum.all;
            return m_reporter.leftOut(item, outcome);
        }
        const OutcomeKind kind = kindOf(outcome);
        ++m_sum.failed;
        m_isCancelled |= kind == OutcomeKind::Cancelled;
        m_reporter.failed(item, outcome);
        const QString &file
            = kind == OutcomeKind::DestinationRefused ? item.destPath : item.input.name;
        const ExitCode code = Output::failure(file, outcome);
        for (const QString &remark : remarksOn(outcome))
            Output::errorLine(printable(file + u": "_s + remark));
        if (!m_firstFailed || &item < m_firstFailed) {
            m_firstFailed = &item;
            m_code = code;
        }
        // The other videos have no better chance.
        if (kind == OutcomeKind::ToolMissing)
            stop();
    }

    void stop()
    {
        m_isStopped = true;
        m_ready.clear();
        m_looking->cancel();
        for (const auto &[item, video] : m_running)
            video.progress->cancel();
    }

    const CommandLine &m_line;
    const std::vector<ConversionItem> m_items;
    Reporter &m_reporter;
    Destination m_others;
    std::size_t m_jobs;
    QEventLoop m_loop;
    QElapsedTimer m_clock;
    TimeLeft m_timeLeft;

    std::size_t m_next = 0;
    std::size_t m_examining = 0;
    std::deque<Video> m_ready;
    std::map<const ConversionItem *, Video> m_running;
    bool m_isStopped = false;
    bool m_isCancelled = false;
    /// Inner ones first.
    QStringList m_madeFolders;
    /// Cancels looks at existing results.
    std::shared_ptr<Progress> m_looking = std::make_shared<Progress>(-1);
    BatchSum m_sum;
    /// The first video, in their order, that was not converted decides the exit status.
    const ConversionItem *m_firstFailed = nullptr;
    ExitCode m_code = ExitCode::Done;
};

}

ExitCode convertVideos(const CommandLine &line, Interruption &interruption)
{
    const auto reporter = line.json ? jsonReporter() : textReporter(line.quiet);
    const auto refused = [&](const QString &name, const Outcome &outcome) {
        reporter->refused(name, outcome);
        return Output::failure(name, outcome);
    };
    if (!line.folder.isEmpty()) {
        if (const auto refusal = folderRefusal(absolutePath(line.folder)))
            return refused(line.folder, *refusal);
    }
    const Inputs inputs = inputsOf(line);
    if (!inputs.refusal.isDone())
        return refused(inputs.refusedName, inputs.refusal);
    return Batch(line, conversionItems(line, inputs.videos), *reporter).run(interruption);
}
