// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace FileBrowser {

void reveal(const QString &filePath);
void openFolder(const QString &folderPath);

}
