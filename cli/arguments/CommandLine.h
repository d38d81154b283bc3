// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitCode.h"
#include "planning/VideoConstraints.h"

#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

enum class Verb { Formats, Probe, Plan, Convert };

struct CommandLine {
    Verb verb = Verb::Formats;
    bool json = false;
    bool overwrite = false;
    bool verbose = false;
    /// The entries named by --to; more than one only for "all".
    std::vector<VideoConstraints> entries;
    QStringList inputs;
    QString output;
    QString folder;
    /// File with a saved media information, "-" for standard input.
    QString info;
};

struct UsageText {
    ExitCode code = ExitCode::Done;
    QString text;
};

/// Reads the program's arguments, the first being its own name.
[[nodiscard]] std::variant<CommandLine, UsageText> parsedCommandLine(const QStringList &arguments);
