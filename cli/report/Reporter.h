// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ConversionItem.h"
#include "cli/report/ProgressLine.h"

#include <chrono>
#include <memory>

/// Shows the user how conversions go. Thread: main.
class Reporter {
public:
    Reporter() = default;
    virtual ~Reporter() = default;
    Q_DISABLE_COPY_MOVE(Reporter)

    [[nodiscard]] static std::unique_ptr<Reporter> suitable(bool json);

    [[nodiscard]] virtual std::chrono::milliseconds interval() const = 0;
    virtual void started(const ConversionItem &item) = 0;
    virtual void progressed(const ConversionItem &item, const ProgressSample &sample) = 0;
    virtual void converted(
        const ConversionItem &item, const Outcome &outcome, std::chrono::milliseconds elapsed)
        = 0;
    virtual void failed(const ConversionItem &item, const Outcome &outcome) = 0;
    virtual void summedUp(int converted, int all) = 0;

protected:
    static void printFailure(const ConversionItem &item, const Outcome &outcome);
};
