// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Sheets for choosing paths. They return at once; the callback never runs when the user cancels.

/// Asks for an existing file, or for a folder when `files` is false.
void runChooseSheet(
    QWidget *window, bool files, const std::function<void(const QString &path)> &path);

/// Tells the user why a path can't be taken, or returns false.
using PathRefusal = std::function<bool(const QString &path)>;

/// Proposes `filename` with the extension `ext` (without dot), which the answer always bears. The
/// user has agreed to replace an existing file that is not refused. Opens in
/// saveFolder(startFolder). Where the dialog is not the desktop's own it also shows `note`.
void runSaveToSheet(QWidget *window, const QString &filename, const QString &ext,
    const std::function<void(const QString &path)> &path, const QString &startFolder = {},
    const PathRefusal &refuses = {}, const QString &note = {});

/// Where the last result of a video of `startFolder` went, while that is there; else `startFolder`.
[[nodiscard]] QString saveFolder(const QString &startFolder);
/// The result of a video of `startFolder` is in `folder`.
void rememberSaveFolder(const QString &startFolder, const QString &folder);
