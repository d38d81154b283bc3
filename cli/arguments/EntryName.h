// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"

[[nodiscard]] QString extensionOf(const VideoConstraints &entry);
/// In menu order; of all groups without one.
[[nodiscard]] std::vector<VideoConstraints> allEntries(std::optional<MenuGroup> group = {});
/// The one entry that a user means, by its name in any letter case or by an extension, or none.
[[nodiscard]] std::vector<VideoConstraints> entryMeant(const QString &text);
/// Names that a user may have meant; empty where none is near.
[[nodiscard]] QStringList namesNear(const QString &text);
/// The file's name promises another format than the entry's, by an extension of ours.
[[nodiscard]] bool promisesOtherFormat(const QString &path, const VideoConstraints &entry);
