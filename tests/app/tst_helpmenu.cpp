// SPDX-License-Identifier: MIT
#include "app/HelpMenu.h"
#include "engine/FFMPEG.h"
#include "support/Console.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"
#include "tests/ui/User.h"
#include "ui/window/AppDelegate.h"
#include "updates/Updater.h"

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_helpmenu : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    /// Opens the menu and clicks its command there; false when the command can't be clicked.
    static bool click(const User &user, const QString &title)
    {
        auto *menu = user.find<QMenu>("helpMenu");
        menu->popup(QPoint(100, 100));
        for (QAction *command : menu->actions()) {
            if (command->text() != title)
                continue;
            const bool enabled = command->isEnabled();
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(command).center());
            menu->hide();
            return enabled;
        }
        return false;
    }

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([](const QString &) {});
    }
    void cleanupTestCase() { FFMPEG::shutDown(); }

    void log_showsWhatTheToolPrinted()
    {
        const QString video = m_folder.filePath(u"video.mov"_s);
        Media::video(video, 2);
        AppDelegate delegate;
        Updater updater({ .version = u"1.0"_s });
        User user(*delegate.window());
        const HelpMenu menu(delegate, updater);
        delegate.applicationDidFinishLaunching();
        delegate.window()->show();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QVERIFY(!click(user, u"Show Conversion Log"_s));

        delegate.takeFiles({ video });
        QTRY_COMPARE(delegate.uiState(), WindowUIState::CoverIsSet);
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
            "print:Duration: 00:00:02.00, start: 0\\n<b>100%\\n|output|reports:2:1000");
        user.acceptsProposal = true;
        user.choose(u"MKV"_s);
        QTRY_COMPARE(delegate.uiState(), WindowUIState::ConversionIsDone);
        QTRY_VERIFY(!delegate.lastToolOutput().isEmpty());
        QVERIFY(click(user, u"Show Conversion Log"_s));
        QTRY_VERIFY(delegate.window()->findChild<QPlainTextEdit *>());
        const auto *log = delegate.window()->findChild<QPlainTextEdit *>();
        QVERIFY(log->isVisible() && log->isReadOnly());
        QVERIFY2(
            log->toPlainText().contains(u"start: 0\n<b>100%\n"_s), qPrintable(log->toPlainText()));
    }

    void check_isAskedFor()
    {
        AppDelegate delegate;
        Updater updater({ .version = u"1.0"_s });
        const User user(*delegate.window());
        const HelpMenu menu(delegate, updater);
        QSignalSpy checks(&updater, &Updater::checked);
        delegate.applicationDidFinishLaunching();
        delegate.window()->show();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QVERIFY(click(user, u"Check for Updates…"_s));
        QTRY_COMPARE(checks.size(), 1);
        QVERIFY(checks.at(0).at(0).value<UpdateCheck>().byUser);
    }
};

QTEST_MAIN(tst_helpmenu)
#include "tst_helpmenu.moc"
