// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitCode.h"
#include "planning/VideoConstraints.h"

#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

enum class Verb { Formats, Probe, Plan, Convert };

/// What the program is asked to do; complete and consistent.
struct CommandLine {
    Verb verb = Verb::Formats;
    bool json = false;
    bool overwrite = false;
    bool verbose = false;
    /// The entries named by --to; more than one only for "all".
    std::vector<VideoConstraints> entries;
    /// Videos, as the user wrote them.
    QStringList inputs;
    /// Result of the only video; empty when `folder` is given.
    QString output;
    QString folder;
    /// File with a saved media information, "-" for standard input.
    QString info;
};

/// A text to show instead: help, or what is wrong with the command line.
struct UsageText {
    ExitCode code = ExitCode::Done;
    QString text;
};

/// Reads the program's arguments, the first being the program's own name. Needs an application
/// object.
[[nodiscard]] std::variant<CommandLine, UsageText> parsedCommandLine(const QStringList &arguments);
