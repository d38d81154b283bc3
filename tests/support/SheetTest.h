// SPDX-License-Identifier: MIT
#pragma once

#include "Answering.h"
#include "support/Defaults.h"
#include "support/dialogs/Sheets.h"
#include "tests/fixtures/Folder.h"

#include <QFileInfo>
#include <QWidget>

#include <memory>

/// A window with a folder of its own, and the paths that its sheets have given.
class SheetTest : public QObject {
protected:
    void setUp()
    {
        Defaults::remove(QStringLiteral("LastSaveFolder"));
        Defaults::remove(QStringLiteral("LastOpenFolder"));
        paths.clear();
        folder = std::make_unique<Folder>();
        window = std::make_unique<QWidget>();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    void runSave(const QString &filename)
    {
        runSaveToSheet(
            window.get(), filename, QStringLiteral("mp4"),
            [this](const QString &given) { paths += given; }, folder->path(),
            [](const QString &given) {
                return QFileInfo(given).isDir() ? QStringLiteral("a folder") : QString();
            },
            QStringLiteral("about 3 MB"));
    }
    [[nodiscard]] QString path(const QString &name) const { return folder->path(name); }

    std::unique_ptr<Folder> folder;
    std::unique_ptr<QWidget> window;
    QStringList paths;
};
