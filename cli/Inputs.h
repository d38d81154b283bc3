// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/CommandLine.h"
#include "engine/Outcome.h"
#include "support/JSON.h"

#include <vector>

struct Input {
    /// As the user wrote it, or found below a folder that the user named.
    QString name;
    /// Absolute.
    QString path;
    /// Absolute, through no link and no "..": the same however the file is spelled.
    QString identity = {};
    /// Found, not named: what is no video is left out silently.
    bool isFound = false;
    /// Of a folder that was found and can't be read.
    Outcome refusal = {};
};

struct ConversionItem {
    Input input;
    QString destPath;
};

/// The videos of a command line, or its list or folder that can't be read, and why.
struct Inputs {
    std::vector<Input> videos = {};
    QString refusedName = {};
    Outcome refusal = {};
};

/// The videos of a command line, each once, with those of a folder and a list. Hidden files and
/// what an earlier run made beside a video are left out. No file is opened. Thread: main.
[[nodiscard]] Inputs inputsOf(const CommandLine &line);

/// The inputs with their destinations, in the inputs' order. In a folder each result gets its
/// input's name with the output's extension, and a number where two bear the same name. Which one
/// gets which number depends on the set of inputs alone. Of a divided list only this part is given.
[[nodiscard]] std::vector<ConversionItem> conversionItems(
    const CommandLine &line, const std::vector<Input> &inputs);

/// The name's extension is that of videos or music. Others may be both too.
[[nodiscard]] bool isCalledMedia(const QString &name);

/// Text files read as terminal art, and subtitles have a length but nothing to see or hear.
[[nodiscard]] bool isVideoOrMusic(const JSON &info);

/// Made absolute, because the tools take a dash for an option and a colon for a protocol. A ".."
/// may lead through a link and stays.
[[nodiscard]] QString absolutePath(const QString &path);
