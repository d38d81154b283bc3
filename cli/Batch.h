// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Inputs.h"
#include "cli/report/Reporter.h"
#include "engine/ConversionRun.h"
#include "engine/Destination.h"
#include "engine/Progress.h"
#include "engine/SteadyTime.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <deque>
#include <map>
#include <optional>

class Interruption;

/// Converts many videos, several side by side, and examines the next ones meanwhile. What one of
/// them comes to touches no other, except that a missing tool or an interruption ends all. Thread:
/// main; each tool is a process of its own.
class Batch {
public:
    Batch(const CommandLine &line, std::vector<ConversionItem> items, Reporter &reporter);
    Q_DISABLE_COPY_MOVE(Batch)

    /// An event loop runs inside.
    [[nodiscard]] ExitCode run(const Interruption &interruption);

private:
    struct Video {
        const ConversionItem *item;
        JSON info;
        bool replaces;
        std::shared_ptr<Progress> progress = {};
        QElapsedTimer clock = {};
        SteadyTime steadyTime = {};
        qint64 told = -1;
    };

    void goOn();
    void examine(const ConversionItem &item);
    void wasExamined(const ConversionItem &item, const JSON &info);
    void makeFolder(const QString &path);
    void checkExisting(const Video &video);
    void start(Video video);
    void report();
    void hasEnded(const ConversionItem &item);
    void settle(const ConversionItem &item, const Outcome &outcome);
    void stop();

    [[nodiscard]] ConversionJob jobOf(const Video &video) const;
    [[nodiscard]] std::optional<Outcome> refusalOfDestination(const ConversionItem &item) const;

    const CommandLine &m_line;
    const std::vector<ConversionItem> m_items;
    Reporter &m_reporter;
    Destination m_others;
    std::size_t m_jobs;
    QEventLoop m_loop;
    QElapsedTimer m_clock;
    SteadyTime m_steadyTime;

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
