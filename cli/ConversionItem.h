// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/CommandLine.h"

#include <vector>

struct ConversionItem {
    QString input;
    QString path;
    QString destPath;
};

/// The inputs with their destinations. In a folder each result gets its input's name with the
/// output's extension, and a number where two bear the same name.
[[nodiscard]] std::vector<ConversionItem> conversionItems(const CommandLine &line);

/// Made absolute, because the tools take a dash for an option and a colon for a protocol. A ".."
/// may lead through a link and stays.
[[nodiscard]] QString absolutePath(const QString &path);
