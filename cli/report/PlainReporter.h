// SPDX-License-Identifier: MIT
#pragma once

#include "cli/report/Reporter.h"

/// Lines for a log: progress about every tenth of the way.
class PlainReporter : public Reporter {
public:
    [[nodiscard]] std::chrono::milliseconds interval() const override;
    void started(const ConversionItem &item) override;
    void progressed(const ConversionItem &item, const ProgressSample &sample) override;
    void converted(const ConversionItem &item, std::chrono::milliseconds elapsed) override;
    void failed(const ConversionItem &item, const Outcome &outcome) override;
    void summedUp(int converted, int all) override;

private:
    qint64 m_lastStep = 0;
};
