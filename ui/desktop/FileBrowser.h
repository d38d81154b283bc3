// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The desktop's file browser. Without one nothing happens.
namespace FileBrowser {

void reveal(const QString &filePath);
void openFolder(const QString &folderPath);

}
