// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The desktop's file browser. Both calls return at once.
/// Thread: main.
/// Errors: swallowed; without a file browser nothing happens.
namespace FileBrowser {

/// Opens the folder of an existing file and selects the file in it.
void reveal(const QString &filePath);
/// Opens a folder.
void openFolder(const QString &folderPath);

}
