// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Sheets for choosing paths. They return at once; the callback runs later, once, and never when
/// the user cancels. Thread: main, the callbacks too.

/// Asks for an existing file, or for a folder when `files` is false.
void runChooseSheet(
    QWidget *window, bool files, const std::function<void(const QString &path)> &path);

/// Asks where to save. Proposes `filename` with the extension `ext` (without dot); the answer
/// always bears it. Before an existing file is answered the user has agreed to replace it. Opens in
/// saveFolder(startFolder).
void runSaveToSheet(QWidget *window, const QString &filename, const QString &ext,
    const std::function<void(const QString &path)> &path, const QString &startFolder = {});

/// The folder in which the save sheet opens: the one last used for saving while it is there, else
/// `startFolder`. Looks at the disk.
[[nodiscard]] QString saveFolder(const QString &startFolder);
