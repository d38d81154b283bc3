// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "engine/Progress.h"

#include <QStringList>

struct ConversionJob {
    QString path;
    QString destPath;
    VideoConstraints constraints;
    JSON conversionInfo = {};
};

/// The complete argument list of the tool for a conversion. Thread: any.
[[nodiscard]] QStringList conversionArguments(const ConversionJob &job);

/// One run of the tool: follows its output, judges its end, removes what must not stay. Thread: the
/// run's own; blocks. `errorHandler` is posted to the main thread.
void runConversion(const ConversionJob &job, const std::shared_ptr<Progress> &progress,
    const FFMPEG::ConversionErrorHandler &errorHandler);
