// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"

/// The entry that a user means: by its name in any letter case, or by an extension.
[[nodiscard]] std::optional<VideoConstraints> entryMeant(const QString &text);
/// All entries, in menu order.
[[nodiscard]] std::vector<VideoConstraints> allEntries();
/// Names that a user may have meant; empty where none is near.
[[nodiscard]] QStringList namesNear(const QString &text);
/// The file's name promises another format than the entry's, by an extension of ours.
[[nodiscard]] bool promisesOtherFormat(const QString &path, const VideoConstraints &entry);
