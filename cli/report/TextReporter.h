// SPDX-License-Identifier: MIT
#pragma once

#include "cli/report/Reporter.h"

#include <QHash>

/// For people: a bar for each running conversion in a terminal's last lines, or lines for a log
/// about every tenth of the way.
class TextReporter : public Reporter {
public:
    /// Failures only, when it is quiet.
    explicit TextReporter(bool isQuiet);
    [[nodiscard]] std::chrono::milliseconds interval() const override;
    void started(const ConversionItem &item) override;
    void progressed(const std::vector<RunningSample> &running, const BatchSum &sum,
        const ProgressSample &whole) override;
    void converted(const ConversionItem &item, const ConvertedVideo &video) override;
    void skipped(const ConversionItem &item) override;
    void leftOut(const ConversionItem &item, const Outcome &outcome) override;
    void failed(const ConversionItem &item, const Outcome &outcome) override;
    void summedUp(const BatchSum &sum) override;

private:
    void say(const QString &text);
    void clearBars();
    void printStep(const RunningSample &running);

    bool m_isQuiet;
    bool m_isTerminal;
    int m_shownBars = 0;
    /// How far each running conversion was when it was last told.
    QHash<QString, qint64> m_steps;
};
