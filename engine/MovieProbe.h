// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"
#include "support/DurationInfo.h"
#include "support/JSON.h"

#include <QStringList>

#include <optional>
#include <variant>

/// Thread: any.
namespace MovieProbe {

/// Why a file is refused before a tool reads it, such as a FIFO, which would block the tool.
[[nodiscard]] std::optional<Outcome> fileRefusal(const QString &path);
/// What a tool must read for a video: the file, and where it is a list of others, their folder.
[[nodiscard]] QStringList readPaths(const QString &path);
/// The media information in a probe's output, which libraries may write to as well. The tool's last
/// words, as text, where there is none.
[[nodiscard]] JSON description(const QByteArray &output);
/// Length in whole seconds, or why the video is refused. `sizeOnDisk` in bytes: a video that is
/// still being written differs from it. Errors: a length beyond 64 bits stops the program.
[[nodiscard]] std::variant<qint64, Outcome> checked(const JSON &info, quint64 sizeOnDisk);
[[nodiscard]] QString coverOffset(const DurationInfo &duration);
[[nodiscard]] QString lengthBucket(qint64 seconds);

}
