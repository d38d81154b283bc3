// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ConversionItem.h"
#include "cli/report/ProgressLine.h"
#include "planning/PlannedWork.h"

#include <memory>

/// How many videos came to what.
struct BatchSum {
    std::size_t all = 0;
    std::size_t converted = 0;
    /// A whole result was there already.
    std::size_t skipped = 0;
    std::size_t failed = 0;

    [[nodiscard]] std::size_t ended() const { return converted + skipped + failed; }
};

struct RunningSample {
    const ConversionItem *item;
    ProgressSample sample;
};

struct ConvertedVideo {
    Outcome outcome;
    PlannedWork work;
    /// Units: whole seconds of media; not positive where unknown.
    qint64 seconds = 0;
    std::chrono::milliseconds elapsed{};
};

/// Shows the user how conversions go. Thread: main.
class Reporter {
public:
    Reporter() = default;
    virtual ~Reporter() = default;
    Q_DISABLE_COPY_MOVE(Reporter)

    [[nodiscard]] static std::unique_ptr<Reporter> suitable(const CommandLine &line);

    [[nodiscard]] virtual std::chrono::milliseconds interval() const = 0;
    virtual void started(const ConversionItem &item) = 0;
    /// `whole` counts thousandths of videos.
    virtual void progressed(
        const std::vector<RunningSample> &running, const BatchSum &sum, const ProgressSample &whole)
        = 0;
    virtual void converted(const ConversionItem &item, const ConvertedVideo &video) = 0;
    /// A whole result was there.
    virtual void skipped(const ConversionItem &item) = 0;
    /// A file that was found beside the videos and is none.
    virtual void leftOut(const ConversionItem &item, const Outcome &outcome) = 0;
    virtual void failed(const ConversionItem &item, const Outcome &outcome) = 0;
    virtual void summedUp(const BatchSum &sum) = 0;
    /// Nothing can be converted at all; returns what the program ends with.
    virtual ExitCode refused(const QString &name, const Outcome &outcome);

protected:
    static void printFailure(const ConversionItem &item, const Outcome &outcome);
};
