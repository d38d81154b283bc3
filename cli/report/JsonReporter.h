// SPDX-License-Identifier: MIT
#pragma once

#include "cli/report/Reporter.h"

#include <QHash>

/// One JSON object a line, as docs/json.md describes it. Failures also go to standard error.
class JsonReporter : public Reporter {
public:
    [[nodiscard]] std::chrono::milliseconds interval() const override;
    void started(const ConversionItem &item) override;
    void progressed(const std::vector<RunningSample> &running, const BatchSum &sum,
        const ProgressSample &whole) override;
    void converted(const ConversionItem &item, const ConvertedVideo &video) override;
    void skipped(const ConversionItem &item) override;
    void leftOut(const ConversionItem &item, const Outcome &outcome) override;
    void failed(const ConversionItem &item, const Outcome &outcome) override;
    void summedUp(const BatchSum &sum) override;
    ExitCode refused(const QString &name, const Outcome &outcome) override;

    /// The command line itself is wrong.
    static void misused(const QString &message);

private:
    QHash<QString, qint64> m_lastCompleted;
};
