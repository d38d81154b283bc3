// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

/// What the tool's whole output says of a run that ended well. Only the tool's own lines count, not
/// the texts that a video carries. Units: seconds of media.
struct RunReport {
    /// In the last progress report.
    std::optional<double> position;
    /// From the closing summary; absent without one.
    std::optional<qint64> pictureBytes;
    std::optional<qint64> soundBytes;
    /// Places of the source where the tool met errors and went on, and where the first one lies.
    int damagedPlaces = 0;
    std::optional<qint64> firstDamage;
    /// The tool guessed the source's length from its size.
    bool lengthIsGuessed = false;
};

/// `paths` are the tool's arguments; what their names say is not its word. Thread: any.
[[nodiscard]] RunReport reportOf(const QByteArray &output, const QStringList &paths);
/// The output's lines, also after "\r", without the video's own texts, which are indented.
[[nodiscard]] QStringList ownLines(const QByteArray &output, const QStringList &paths);
/// The tool could not write the end of its result; some versions still end with status 0.
[[nodiscard]] bool reportsLostOutput(const QByteArray &output, const QStringList &paths);
/// Why a run of the tool failed, read from its last lines. Thread: any.
[[nodiscard]] Outcome toolFailure(const QByteArray &output);
