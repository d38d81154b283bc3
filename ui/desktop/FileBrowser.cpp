// SPDX-License-Identifier: MIT
#include "ui/desktop/FileBrowser.h"

#include "ui/desktop/DesktopBus.h"

using namespace Qt::StringLiterals;

void FileBrowser::reveal(const QString &filePath)
{
    const QFileInfo file(QFileInfo(filePath).absoluteFilePath());
    const QStringList uris{ QUrl::fromLocalFile(file.filePath()).toString(QUrl::FullyEncoded) };
    const DesktopBus::Object fileManager{ u"org.freedesktop.FileManager1"_s,
        u"/org/freedesktop/FileManager1"_s, u"org.freedesktop.FileManager1"_s };
    DesktopBus::call(fileManager, u"ShowItems"_s, { uris, QString() },
        [folder = file.path()](const QDBusMessage &answer) {
            if (answer.type() == QDBusMessage::ErrorMessage)
                open(folder);
        });
}
