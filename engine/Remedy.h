// SPDX-License-Identifier: MIT
#pragma once

#include "engine/ConversionRun.h"
#include "engine/Outcome.h"

/// The remedy for what the tool said when it failed; none where nothing helps. Thread: any.
[[nodiscard]] Remedy remedyFor(
    const Outcome &failure, const QByteArray &output, const ConversionJob &job);
/// The job with its media information or its bound changed, so that the plan changes.
[[nodiscard]] ConversionJob remedied(ConversionJob job, Remedy remedy);
