// SPDX-License-Identifier: MIT
#pragma once

#include "engine/ConversionRun.h"

/// The job's destination holds a whole result already: it is newer than the source, and its packets
/// are as long as the source says. Thread: not main; reads the whole file, until
/// `progress` is cancelled.
[[nodiscard]] bool holdsWholeResult(const ConversionJob &job, const Progress &progress);
