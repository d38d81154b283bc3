// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "support/Console.h"
#include "support/Defaults.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"
#include "tests/ui/User.h"
#include "ui/window/AppDelegate.h"

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <memory>

constexpr char hundredSeconds[] = "print:Duration: 00:01:40.00, start: 0.000000\\n|output|";

/// The real window with a video beside it, and a user who acts on both.
class WindowTest : public QObject {
    Q_OBJECT

protected:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<AppDelegate> m_delegate;
    std::unique_ptr<User> m_user;
    QString m_video;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString url(const QString &name) const { return QUrl::fromLocalFile(path(name)).toString(); }

    bool waitFor(WindowUIState state, int milliseconds = 20000)
    {
        return QTest::qWaitFor([&] { return m_delegate->uiState() == state; }, milliseconds);
    }

    bool open(const QString &name)
    {
        return m_user->drop({ url(name) }) && waitFor(WindowUIState::CoverIsSet);
    }

    /// Starts converting the video with a tool that follows the script.
    std::unique_ptr<ToolSwap> convertWith(const QByteArray &script)
    {
        if (!open(QStringLiteral("video.mov")))
            return nullptr;
        auto swap = std::make_unique<ToolSwap>(
            QStringLiteral("ffmpeg"), ToolSwap::With::FakeTool, script);
        m_user->names << QStringLiteral("result");
        m_user->choose(QStringLiteral("MKV"));
        return swap;
    }

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([](const QString &) {});
        QApplication::setQuitOnLastWindowClosed(false);
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        Defaults::remove(QStringLiteral("LastSaveFolder"));
        Defaults::remove(QStringLiteral("LastOpenFolder"));
        m_video = path(QStringLiteral("video.mov"));
        static const QByteArray video = [this] {
            Media::video(m_video, 3);
            QFile file(m_video);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        }();
        QFile file(m_video);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(video) > 0);
        m_delegate = std::make_unique<AppDelegate>();
        m_user = std::make_unique<User>(*m_delegate->window());
        m_delegate->applicationDidFinishLaunching();
        m_delegate->window()->show();
        m_delegate->window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_delegate->window()));
    }

    void cleanup()
    {
        m_delegate.reset();
        m_user.reset();
        QTRY_COMPARE(Processes::children(), QStringList());
    }

    void cleanupTestCase() { FFMPEG::shutDown(); }
};
