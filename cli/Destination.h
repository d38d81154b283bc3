// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandLine.h"

#include <optional>
#include <vector>

/// One video on its way.
struct ConversionItem {
    /// As the user wrote it.
    QString input;
    /// Absolute paths.
    QString path;
    QString destPath;
};

/// The videos of a command line with their destinations. In a folder each gets its video's name
/// with the output's extension, and a number where two videos bear the same name.
[[nodiscard]] std::vector<ConversionItem> conversionItems(const CommandLine &line);

/// Why nothing can be written to a folder.
[[nodiscard]] std::optional<Failure> folderRefusal(const QString &folder);
/// Refuses a destination that is one of the videos, whatever its spelling.
[[nodiscard]] std::optional<Failure> sourceRefusal(
    const QString &destPath, const std::vector<ConversionItem> &items);
/// Why a file must not be written: nothing but an ordinary file is replaced, that only when it is
/// allowed, and neither a video that this run reads nor another of its results.
[[nodiscard]] std::optional<Failure> destinationRefusal(
    const QString &destPath, const std::vector<ConversionItem> &items, bool overwrite);
/// Makes the file, empty, so that of several programs that start together only one writes it.
/// Refuses where another one has been faster.
[[nodiscard]] std::optional<Failure> takenMeanwhile(const QString &destPath);
