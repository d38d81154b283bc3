// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "engine/Remedy.h"
#include "engine/StagedFile.h"

/// Whether a job may replace a file at its destination.
enum class OlderFile { Kept, Replaced };

/// One job of the user: checks the destination, stages the result, runs the tool once or twice,
/// looks at the result where it is in doubt, and moves it into place. So a job ends with a true
/// outcome, and an older file is replaced by success alone. Thread: its own; `errorHandler` is
/// posted to the main thread.
class Conversion {
public:
    /// Returns at once. The progress object is like that of a single run, and full only when the
    /// result is in place. `errorHandler` gets the message of a short result or a refused
    /// destination, and none after a failure.
    static std::shared_ptr<Progress> start(
        ConversionJob job, OlderFile olderFile, FFMPEG::ConversionErrorHandler errorHandler);

private:
    Conversion(ConversionJob job, OlderFile olderFile, std::shared_ptr<Progress> progress);

    [[nodiscard]] Outcome converted();
    [[nodiscard]] Outcome tried(const ConversionJob &job, StagedFile &staged);
    [[nodiscard]] Outcome ran(const ConversionJob &job);
    [[nodiscard]] Outcome verdictOn(const ConversionJob &job, const Outcome &run) const;
    [[nodiscard]] Outcome placed(StagedFile &staged, Outcome outcome) const;
    void follow(const Progress &run) const;

    ConversionJob m_job;
    bool m_overwrite;
    std::shared_ptr<Progress> m_progress;
    QByteArray m_output;
};
