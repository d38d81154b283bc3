// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"

#include <optional>

class JSON;
class QAction;

namespace Ui {
class MainWindow;
}

/// The entries of the format menu.
namespace FormatEntries {

[[nodiscard]] std::optional<VideoConstraints> constraintsOf(
    const Ui::MainWindow &outlets, const QAction *item);
/// Marks the entries that only copy this video, says of each what it does, and disables those that
/// would make nothing of it.
void mark(const Ui::MainWindow &outlets, const JSON &info);

}
