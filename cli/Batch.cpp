// SPDX-License-Identifier: MIT
#include "cli/Batch.h"

#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "engine/Async.h"
#include "engine/Conversion.h"
#include "engine/Verdict.h"
#include "support/Interruption.h"
#include "support/MainQueue.h"
#include "support/Path.h"
#include "support/Text.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// What a folder holds beside videos is no failure; what is called a video there and can't be read
/// is one.
bool isLeftOut(const Input &input, const Outcome &outcome)
{
    static const QSet<Reason> reasons{ Reason::NotMedia, Reason::NoDuration, Reason::TooShort,
        Reason::EmptyFile, Reason::NotRegularFile };
    return input.isFound && reasons.contains(outcome.reason) && !isCalledMedia(input.name);
}

/// Text files read as terminal art, and subtitles have a length but nothing to see or hear.
bool isVideoOrMusic(const JSON &info)
{
    if (info[u"format"_s][u"format_name"_s].stringValue() == u"tty")
        return false;
    const std::vector<JSON> streams = info[u"streams"_s].array();
    return std::any_of(streams.begin(), streams.end(), [](const JSON &stream) {
        const QString kind = stream[u"codec_type"_s].stringValue();
        return kind == u"video" || kind == u"audio";
    });
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

void printFailure(const ConversionItem &item, const Outcome &outcome)
{
    const bool isDestination = kindOf(outcome) == OutcomeKind::DestinationRefused;
    const QString &file = isDestination ? item.destPath : item.input.name;
    Output::failure(file, outcome);
    for (const QString &remark : remarksOn(outcome))
        Output::errorLine(printable(file + u": "_s + remark));
}

}

Batch::Batch(const CommandLine &line, std::vector<ConversionItem> items, Reporter &reporter)
    : m_line(line)
    , m_items(std::move(items))
    , m_reporter(reporter)
    // Encoders use several threads themselves: more jobs than cores only cost memory.
    , m_jobs(static_cast<std::size_t>(line.jobs > 0 ? line.jobs : QThread::idealThreadCount()))
    , m_firstFailed(m_items.size())
{
    m_sum.all = m_items.size();
    for (const ConversionItem &item : m_items) {
        m_others.sources.add(item.input.path);
        m_others.otherResults << item.destPath;
    }
}

ExitCode Batch::run(const Interruption &interruption)
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &m_loop, [this] { report(); });
    QObject::connect(&interruption, &Interruption::arrived, &m_loop, [this] { goOn(); });
    timer.start(m_reporter.interval());
    m_clock.start();
    MainQueue::post([this] { goOn(); });
    m_loop.exec();
    if (Interruption::signal() != 0 && (m_isCancelled || m_sum.ended() < m_sum.all))
        m_code = ExitCode::Cancelled;
    // Those that stayed empty go; the others stay.
    for (const QString &folder : std::as_const(m_madeFolders))
        QDir().rmdir(folder);
    if (m_sum.all > 1)
        m_reporter.summedUp(m_sum);
    return m_code;
}

void Batch::goOn()
{
    if (Interruption::signal() != 0)
        stop();
    while (!m_isStopped && m_running.size() < m_jobs && !m_ready.empty()) {
        const Examined video = std::move(m_ready.front());
        m_ready.pop_front();
        start(video);
    }
    while (!m_isStopped && m_next < m_items.size() && m_examining + m_ready.size() < m_jobs)
        examine(m_next++);
    // Who was interrupted does not wait for examinations.
    const bool isWaiting = m_examining > 0 || !m_ready.empty() || m_next < m_items.size();
    if (m_running.empty() && (m_isStopped || !isWaiting))
        m_loop.quit();
}

ConversionJob Batch::jobOf(std::size_t index, const JSON &info) const
{
    const ConversionItem &item = m_items[index];
    return { item.input.path, item.destPath, m_line.entries.front(), info };
}

std::optional<Outcome> Batch::refusalOfDestination(std::size_t index) const
{
    Destination destination = m_others;
    destination.path = m_items[index].destPath;
    destination.overwrite = m_line.overwrite || m_line.skipExisting;
    return refusalOf(destination);
}

void Batch::examine(std::size_t index)
{
    const Input &input = m_items[index].input;
    if (!input.isFound) {
        if (const auto refusal = refusalOfDestination(index))
            return settle(index, *refusal);
    }
    ++m_examining;
    FFMPEG::collectMovieInfo(
        input.path,
        [this, index](const Outcome &refusal) {
            --m_examining;
            // The same Ctrl-C may have stopped the tool: its refusal says nothing about the video.
            if (Interruption::signal() == 0)
                settle(index, refusal);
            goOn();
        },
        [this, index](const JSON &info, const QImage &, const QString &) {
            --m_examining;
            wasExamined({ .index = index, .info = info });
            goOn();
        },
        Cover::LeftOut);
}

void Batch::wasExamined(Examined video)
{
    const Input &input = m_items[video.index].input;
    if (m_isStopped)
        return;
    if (input.isFound) {
        if (!isVideoOrMusic(video.info))
            return settle(video.index, { Reason::NotMedia });
        makeFolder(Path::stringByDeletingLastPathComponent(m_items[video.index].destPath));
        if (const auto refusal = refusalOfDestination(video.index))
            return settle(video.index, *refusal);
    }
    video.replaces = m_line.overwrite;
    if (m_line.skipExisting && QFileInfo::exists(m_items[video.index].destPath))
        checkExisting(video);
    else
        m_ready.push_back(std::move(video));
}

/// The results' tree is made as far as it is needed.
void Batch::makeFolder(const QString &path)
{
    if (path.isEmpty() || QFileInfo::exists(path))
        return;
    makeFolder(Path::stringByDeletingLastPathComponent(path));
    if (QDir().mkdir(path))
        m_madeFolders.prepend(path);
}

void Batch::checkExisting(const Examined &video)
{
    ++m_examining;
    Async::background([this, video, looking = m_looking, job = jobOf(video.index, video.info)] {
        const bool isWhole = holdsWholeResult(job, *looking);
        MainQueue::post([this, video, isWhole] {
            --m_examining;
            if (isWhole) {
                ++m_sum.skipped;
                m_reporter.skipped(m_items[video.index]);
            } else {
                m_ready.push_back({ video.index, video.info, true });
            }
            goOn();
        });
    });
}

void Batch::start(const Examined &video)
{
    Running &running = m_running[video.index];
    running.info = video.info;
    running.clock.start();
    m_reporter.started(m_items[video.index]);
    running.progress = Conversion::start(jobOf(video.index, video.info),
        video.replaces ? OlderFile::Replaced : OlderFile::Kept, [](const auto &) {});
    running.progress->setEndHandler(
        [this, index = video.index] { MainQueue::post([this, index] { hasEnded(index); }); });
}

void Batch::report()
{
    std::vector<RunningSample> samples;
    double fraction = 0;
    for (auto &[index, running] : m_running) {
        ProgressSample sample{ .completed = running.progress->completedUnitCount(),
            .total = running.progress->totalUnitCount(),
            .elapsed = std::chrono::milliseconds(running.clock.elapsed()) };
        sample.left = running.steadyTime.shown(sample.secondsLeft());
        fraction += running.progress->fractionCompleted();
        samples.push_back({ m_items[index], sample, running.told });
    }
    // What was skipped took no time and says nothing about the rest.
    constexpr qint64 parts = 1000;
    const auto done = static_cast<double>(m_sum.ended() - m_sum.skipped) + fraction;
    ProgressSample whole{ .completed = static_cast<qint64>(done * static_cast<double>(parts)),
        .total = static_cast<qint64>(m_sum.all - m_sum.skipped) * parts,
        .elapsed = std::chrono::milliseconds(m_clock.elapsed()) };
    whole.left = m_steadyTime.shown(whole.secondsLeft());
    m_reporter.progressed(samples, m_sum, whole);
}

void Batch::hasEnded(std::size_t index)
{
    const auto node = m_running.extract(index);
    const Running &running = node.mapped();
    const Outcome outcome = outcomeOf(*running.progress);
    if (outcome.isDone()) {
        ++m_sum.converted;
        ConversionJob job = jobOf(index, running.info);
        for (const Remedy remedy : outcome.remedies)
            job = remedied(job, remedy);
        m_reporter.converted(m_items[index],
            { .outcome = outcome,
                .work = plannedWork(job.constraints, job.conversionInfo),
                .seconds = running.progress->totalUnitCount(),
                .elapsed = std::chrono::milliseconds(running.clock.elapsed()) });
    } else {
        settle(index, outcome);
    }
    goOn();
}

void Batch::settle(std::size_t index, const Outcome &outcome)
{
    if (isLeftOut(m_items[index].input, outcome)) {
        --m_sum.all;
        return m_reporter.leftOut(m_items[index], outcome);
    }
    ++m_sum.failed;
    m_isCancelled |= kindOf(outcome) == OutcomeKind::Cancelled;
    m_reporter.failed(m_items[index], outcome);
    printFailure(m_items[index], outcome);
    if (index < m_firstFailed) {
        m_firstFailed = index;
        m_code = exitCodeOf(kindOf(outcome));
    }
    // The other videos have no better chance.
    if (kindOf(outcome) == OutcomeKind::ToolMissing)
        stop();
}

void Batch::stop()
{
    m_isStopped = true;
    m_ready.clear();
    m_looking->cancel();
    for (const auto &[index, running] : m_running)
        running.progress->cancel();
}
