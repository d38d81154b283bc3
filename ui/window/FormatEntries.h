// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"

#include <optional>

class JSON;
class QAction;
class QMenu;

namespace Ui {
class MainWindow;
}

/// The entries of the format menu.
namespace FormatEntries {

/// Lets screen readers read what they do; the one that was used last is the menu's default.
void prepare(QMenu &menu);
/// As the one that was used last, also at the next start.
void remember(QMenu &menu, QAction &entry);
[[nodiscard]] std::optional<VideoConstraints> constraintsOf(
    const Ui::MainWindow &outlets, const QAction *item);
/// Marks those that only copy this video, disables those that make nothing of it, explains all.
void mark(const Ui::MainWindow &outlets, const JSON &info);

}
