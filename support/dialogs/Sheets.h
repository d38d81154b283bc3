// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Sheets for choosing paths. They return at once; the callback never runs when the user cancels.

/// Asks for an existing file, or for a folder when `files` is false.
void runChooseSheet(
    QWidget *window, bool files, const std::function<void(const QString &path)> &path);

/// Why a path can't be taken, for the user; empty when it can.
using PathRefusal = std::function<QString(const QString &path)>;

/// Proposes `filename` in saveFolder(startFolder). The answer always bears the extension `ext`, and
/// the user has agreed to replace it. Shows `note`, unless the dialog is the desktop's own.
void runSaveToSheet(QWidget *window, const QString &filename, const QString &ext,
    const std::function<void(const QString &path)> &path, const QString &startFolder,
    const PathRefusal &refusal, const QString &note = {});

/// Where the last result of a video of `startFolder` went, while that is there; else `startFolder`.
[[nodiscard]] QString saveFolder(const QString &startFolder);
/// The result of a video of `startFolder` is in `folder`.
void rememberSaveFolder(const QString &startFolder, const QString &folder);
