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

/// The real window with a video beside it, and a user who acts on both.
class WindowTest : public QObject {
    Q_OBJECT

protected:
    QTemporaryDir m_sample;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<AppDelegate> m_delegate;
    std::unique_ptr<User> m_user;
    std::unique_ptr<ToolSwap> m_swap;
    QString m_video;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString url(const QString &name) const { return QUrl::fromLocalFile(path(name)).toString(); }

    bool waitFor(WindowUIState state, int milliseconds = 20000)
    {
        return QTest::qWaitFor([&] { return m_delegate->uiState() == state; }, milliseconds);
    }

    bool open(const QString &name = QStringLiteral("video.mov"))
    {
        return m_user->drop({ url(name) }) && waitFor(WindowUIState::CoverIsSet);
    }

    /// Opens a video and converts it, until the window has this state, with a tool that follows the
    /// script after it has told of a hundred seconds.
    bool convert(const QByteArray &script, WindowUIState until = WindowUIState::Converting,
        const QString &name = QStringLiteral("video.mov"))
    {
        m_swap.reset();
        if (!open(name))
            return false;
        m_swap = std::make_unique<ToolSwap>(QStringLiteral("ffmpeg"), ToolSwap::With::FakeTool,
            "print:Duration: 00:01:40.00, start: 0.000000\\n|output|" + script);
        m_user->names << QStringLiteral("result");
        m_user->choose(QStringLiteral("MKV"));
        return waitFor(until);
    }

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([](const QString &) {});
        QApplication::setQuitOnLastWindowClosed(false);
        Media::video(m_sample.filePath(QStringLiteral("video.mov")), 3);
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        Defaults::remove(QStringLiteral("LastSaveFolder"));
        Defaults::remove(QStringLiteral("LastOpenFolder"));
        m_video = path(QStringLiteral("video.mov"));
        QVERIFY(QFile::copy(m_sample.filePath(QStringLiteral("video.mov")), m_video));
        m_delegate = std::make_unique<AppDelegate>();
        m_user = std::make_unique<User>(*m_delegate->window());
        m_delegate->applicationDidFinishLaunching();
        m_delegate->window()->show();
        m_delegate->window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_delegate->window()));
    }

    void cleanup()
    {
        m_swap.reset();
        m_delegate.reset();
        m_user.reset();
        QTRY_COMPARE(Processes::children(), QStringList());
    }

    void cleanupTestCase() { FFMPEG::shutDown(); }
};
