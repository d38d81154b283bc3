// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Inputs.h"

struct ConversionItem {
    Input input;
    QString destPath;
};

/// The inputs with their destinations, in the inputs' order. In a folder each result gets its
/// input's name with the output's extension, and a number where two bear the same name. Who gets
/// which number depends on the set of inputs alone, not on their order. Of a divided list only this
/// part is given.
[[nodiscard]] std::vector<ConversionItem> conversionItems(
    const CommandLine &line, const VideoConstraints &entry, const std::vector<Input> &inputs);
