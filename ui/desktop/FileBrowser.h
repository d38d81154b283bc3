// SPDX-License-Identifier: MIT
#pragma once

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace FileBrowser {

void reveal(const QString &filePath);

/// In the program that the desktop has for this file or folder.
inline void open(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
}

}
