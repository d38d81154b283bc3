// SPDX-License-Identifier: MIT
#pragma once

#include "cli/report/PlainReporter.h"

/// A bar that moves in the terminal's last line.
class TerminalReporter : public PlainReporter {
public:
    [[nodiscard]] std::chrono::milliseconds interval() const override;
    void started(const ConversionItem &item) override;
    void progressed(const ConversionItem &item, const ProgressSample &sample) override;
    void converted(const ConversionItem &item, std::chrono::milliseconds elapsed) override;
    void failed(const ConversionItem &item, const Outcome &outcome) override;
};
