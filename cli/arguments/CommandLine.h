// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitCode.h"
#include "cli/arguments/Options.h"
#include "planning/VideoConstraints.h"

#include <QStringList>

#include <variant>
#include <vector>

/// One part of a list of videos that is divided between several machines; K counts from 1.
struct Shard {
    int part = 1;
    int parts = 1;
};

struct CommandLine {
    Verb verb = Verb::Formats;
    bool json = false;
    bool quiet = false;
    bool verbose = false;
    bool overwrite = false;
    bool skipExisting = false;
    /// The entries named by --to; more than one only for "all".
    std::vector<VideoConstraints> entries = {};
    QStringList inputs = {};
    /// Folder whose videos are taken too.
    QString tree = {};
    /// File with names of videos, "-" for standard input.
    QString list = {};
    bool listIsNullSeparated = false;
    QString output = {};
    QString folder = {};
    /// File with a saved media information, "-" for standard input.
    QString info = {};
    int jobs = 1;
    Shard shard = {};

    /// The videos are found by the program, not all named by the user.
    [[nodiscard]] bool hasList() const { return !tree.isEmpty() || !list.isEmpty(); }
};

struct UsageText {
    ExitCode code = ExitCode::Done;
    QString text;
};

/// Reads the program's arguments, the first being its own name.
[[nodiscard]] std::variant<CommandLine, UsageText> parsedCommandLine(const QStringList &arguments);
