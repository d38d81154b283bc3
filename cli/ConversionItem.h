// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/CommandLine.h"

#include <vector>

/// One video on its way to its result.
struct ConversionItem {
    /// As the user wrote it.
    QString input;
    /// Absolute paths.
    QString path;
    QString destPath;
};

/// The inputs of a command line with their destinations. In a folder each result gets its input's
/// name with the output's extension, and a number where two inputs bear the same name.
[[nodiscard]] std::vector<ConversionItem> conversionItems(const CommandLine &line);

/// The path, made absolute: the tools take a relative one that begins with a dash for an option,
/// and one with a colon for a protocol. "//" and "/./" become "/"; a ".." may lead through a link
/// and stays.
[[nodiscard]] QString absolutePath(const QString &path);
