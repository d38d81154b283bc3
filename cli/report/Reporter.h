// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Inputs.h"
#include "cli/report/ProgressLine.h"
#include "planning/PlannedWork.h"

#include <memory>

struct BatchSum {
    std::size_t all = 0;
    std::size_t converted = 0;
    /// A whole result was there already.
    std::size_t skipped = 0;
    std::size_t failed = 0;

    [[nodiscard]] std::size_t ended() const { return converted + skipped + failed; }
};

struct RunningSample {
    const ConversionItem &item;
    ProgressSample sample;
    /// The reporter's own: how far the video was at the last report, -1 before.
    qint64 &lastReported;
};

struct ConvertedVideo {
    Outcome outcome;
    PlannedWork work;
    /// Units: whole seconds of media; not positive where unknown.
    qint64 seconds = 0;
    std::chrono::milliseconds elapsed{};
};

/// Shows how conversions go; why one failed is said on standard error beside. Thread: main.
class Reporter {
public:
    Reporter() = default;
    virtual ~Reporter() = default;
    Q_DISABLE_COPY_MOVE(Reporter)

    [[nodiscard]] virtual std::chrono::milliseconds interval() const = 0;
    virtual void started(const ConversionItem & /*item*/) { }
    /// `whole` counts thousandths of videos.
    virtual void progressed(
        const std::vector<RunningSample> &running, const BatchSum &sum, const ProgressSample &whole)
        = 0;
    virtual void converted(const ConversionItem &item, const ConvertedVideo &video) = 0;
    virtual void skipped(const ConversionItem &item) = 0;
    /// A file that was found beside the videos and is none.
    virtual void leftOut(const ConversionItem & /*item*/, const Outcome & /*outcome*/) { }
    virtual void failed(const ConversionItem &item, const Outcome &outcome) = 0;
    virtual void summedUp(const BatchSum &sum) = 0;
    /// Nothing can be converted at all.
    virtual void refused(const QString & /*name*/, const Outcome & /*outcome*/) { }
};

/// One JSON object a line, as docs/json.md describes it.
[[nodiscard]] std::unique_ptr<Reporter> jsonReporter();
/// The same where the command line itself is wrong.
void printMisuse(const QString &message);
/// For people: bars in a terminal's last lines, or lines for a log about every tenth of the way.
[[nodiscard]] std::unique_ptr<Reporter> textReporter(bool isQuiet);
