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
    struct Examined {
        std::size_t index;
        JSON info;
        bool replaces = false;
    };
    struct Running {
        std::shared_ptr<Progress> progress;
        JSON info;
        QElapsedTimer clock;
        SteadyTime steadyTime;
        qint64 told = -1;
    };

    void goOn();
    void examine(std::size_t index);
    void wasExamined(Examined video);
    void makeFolder(const QString &path);
    void checkExisting(const Examined &video);
    void start(const Examined &video);
    void report();
    void hasEnded(std::size_t index);
    void settle(std::size_t index, const Outcome &outcome);
    void stop();

    [[nodiscard]] ConversionJob jobOf(std::size_t index, const JSON &info) const;
    [[nodiscard]] std::optional<Outcome> refusalOfDestination(std::size_t index) const;

    const CommandLine &m_line;
    std::vector<ConversionItem> m_items;
    Reporter &m_reporter;
    Destination m_others;
    std::size_t m_jobs;
    QEventLoop m_loop;
    QElapsedTimer m_clock;
    SteadyTime m_steadyTime;

    std::size_t m_next = 0;
    std::size_t m_examining = 0;
    std::deque<Examined> m_ready;
    std::map<std::size_t, Running> m_running;
    bool m_isStopped = false;
    bool m_isCancelled = false;
    /// Inner ones first.
    QStringList m_madeFolders;
    /// Cancels looks at existing results.
    std::shared_ptr<Progress> m_looking = std::make_shared<Progress>(-1);
    BatchSum m_sum;
    /// The first video, in their order, that was not converted decides the exit status.
    std::size_t m_firstFailed;
    ExitCode m_code = ExitCode::Done;
};
