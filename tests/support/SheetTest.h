// SPDX-License-Identifier: MIT
#pragma once

#include "Answering.h"
#include "support/Defaults.h"
#include "support/dialogs/Sheets.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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
        folder = std::make_unique<QTemporaryDir>();
        window = std::make_unique<QWidget>();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    void runSave(const QString &filename)
    {
        runSaveToSheet(
            window.get(), filename, QStringLiteral("mp4"),
            [this](const QString &given) { paths += given; }, folder->path());
    }
    void write(const QString &name) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] QString path(const QString &name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<QWidget> window;
    QStringList paths;
};
