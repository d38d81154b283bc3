// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Why no result can stand at a path, as a sentence for the user: a folder, a device or a link that
/// leads nowhere is there. Absent where nothing or an ordinary file is. Thread: any.
[[nodiscard]] std::optional<QString> obstacleAt(const QString &destPath);
