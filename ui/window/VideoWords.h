// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class JSON;
struct PlannedWork;

/// What the window says of videos and of the work on them.
namespace VideoWords {

/// Such as "Encodes the picture anew, copies the sound · Scales to 1280 × 720".
[[nodiscard]] QString willDo(const PlannedWork &work);
/// Such as "Encoding the picture, copying the sound".
[[nodiscard]] QString isDoing(const PlannedWork &work);
/// Size, picture, codec and sound of a media information.
[[nodiscard]] QString factsOf(const JSON &info);
/// Name, size and length of a result.
[[nodiscard]] QString resultLine(const QString &path, const QString &length);
/// Absent where the size is not known.
[[nodiscard]] QString expectedSize(const std::optional<qint64> &size);
/// On one line, each in its own direction.
[[nodiscard]] QString joined(const QStringList &parts);

}
