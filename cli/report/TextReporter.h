// SPDX-License-Identifier: MIT
#pragma once

#include "cli/report/Reporter.h"

/// For people: a bar in a terminal's last line, or lines for a log about every tenth of the way.
class TextReporter : public Reporter {
public:
    TextReporter();
    [[nodiscard]] std::chrono::milliseconds interval() const override;
    void started(const ConversionItem &item) override;
    void progressed(const ConversionItem &item, const ProgressSample &sample) override;
    void converted(const ConversionItem &item, const Outcome &outcome,
        std::chrono::milliseconds elapsed) override;
    void failed(const ConversionItem &item, const Outcome &outcome) override;
    void summedUp(int converted, int all) override;

private:
    void clearBar() const;

    bool m_isTerminal;
    qint64 m_lastStep = 0;
};
