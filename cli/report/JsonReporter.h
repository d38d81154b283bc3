// SPDX-License-Identifier: MIT
#pragma once

#include "cli/report/Reporter.h"

class QJsonObject;

/// One JSON object a line, each with an "event". Failures also go to standard error.
class JsonReporter : public Reporter {
public:
    [[nodiscard]] std::chrono::milliseconds interval() const override;
    void started(const ConversionItem &item) override;
    void progressed(const ConversionItem &item, const ProgressSample &sample) override;
    void converted(const ConversionItem &item, const Outcome &outcome,
        std::chrono::milliseconds elapsed) override;
    void failed(const ConversionItem &item, const Outcome &outcome) override;
    void summedUp(int converted, int all) override;

private:
    qint64 m_lastCompleted = -1;
};
