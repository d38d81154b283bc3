// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Sheets for choosing paths. They return at once; the callback never runs when the user cancels.

/// Asks for an existing file, or for a folder when `files` is false.
void runChooseSheet(
    QWidget *window, bool files, const std::function<void(const QString &path)> &path);

/// Proposes `filename` with the extension `ext` (without dot), which the answer always bears. The
/// user has agreed to replace an existing file. Opens in saveFolder(startFolder).
void runSaveToSheet(QWidget *window, const QString &filename, const QString &ext,
    const std::function<void(const QString &path)> &path, const QString &startFolder = {});

/// The folder last used for saving while it is there, else `startFolder`.
[[nodiscard]] QString saveFolder(const QString &startFolder);
