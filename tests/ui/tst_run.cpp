// SPDX-License-Identifier: MIT
#include "tests/ui/WindowTest.h"
#include "tests/ui/desktop/DesktopStandIn.h"
#include "ui/desktop/KeepAwake.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/SpinningView.h"

#include <QDBusVariant>
#include <QDesktopServices>
#include <QProgressBar>

using namespace Qt::StringLiterals;
using State = WindowUIState;

namespace {

const QString fileManager = u"org.freedesktop.FileManager1"_s;
const QString notifications = u"org.freedesktop.Notifications"_s;
const QString portal = u"org.freedesktop.portal.Desktop"_s;
const QString question
    = u"Attention! Current converting process will be cancelled.\nAre you sure you want to continue?"_s;

}

/// Conversions that fail, are cancelled or outlive their window, and what the desktop hears.
class tst_run : public WindowTest {
    Q_OBJECT

private:
    QStringList m_opened;

public Q_SLOTS:
    /// Stands for the program that opens folders.
    void openFolder(const QUrl &url) { m_opened << url.toLocalFile(); }

private Q_SLOTS:
    void cancel_asksFirst()
    {
        QVERIFY(convert("reports:3000:20000"));
        QTRY_VERIFY(find<QProgressBar>("progressBar")->value() > 100);
        QTRY_VERIFY(m_delegate->window()->windowTitle().contains(u"% – "_s));
        QTest::keyClick(m_delegate->window(), Qt::Key_Escape);
        QCOMPARE(m_user.read, QStringList(question));
        QCOMPARE(m_delegate->uiState(), State::Converting);

        m_user.saysYes = true;
        click("cancelProgressImageView");
        QVERIFY(waitFor(State::InitialState, 1000));
        QCOMPARE(m_user.read, QStringList({ question, question }));
        QTRY_COMPARE(files(), QStringList{ u"video.mov"_s });
        QTest::qWait(50);
        QCOMPARE(m_delegate->uiState(), State::InitialState);
        QVERIFY(!m_delegate->window()->windowTitle().contains(u'%'));
    }

    void programEnd_stopsTheRun()
    {
        QVERIFY(convert("reports:3000:20000"));
        QTRY_COMPARE(files().size(), 2);
        m_delegate.reset();
        QTRY_COMPARE(Processes::children(), QStringList());
        QTRY_COMPARE(files(), QStringList{ u"video.mov"_s });
    }

    void failure_isTold()
    {
        QVERIFY(QFile::rename(m_video, path(u"100%d %@.mov"_s)));
        QVERIFY(convert("print:100%d of %@\\n|exit:1", State::InitialState, u"100%d %@.mov"_s));
        QTRY_COMPARE(m_user.read,
            QStringList(u"Error processing 100%d %@.mov\nThe tool failed: 100%d of %@"_s));
        QVERIFY(open(u"100%d %@.mov"_s));
    }

    void missingTool_leavesTheWindowUsable()
    {
        QVERIFY(open());
        m_swap = std::make_unique<ToolSwap>(u"ffmpeg"_s, ToolSwap::With::Nothing);
        m_user.names << u"result"_s;
        choose(u"MKV"_s);
        QVERIFY(waitFor(State::InitialState));
        const QString reason = find<QLabel>("refusalLabel")->text();
        QVERIFY2(reason.contains(u"/ffmpeg/ffmpeg is missing"_s), qPrintable(reason));
        m_swap.reset();
        QVERIFY(open());
    }

    void close_asksAndWaits()
    {
        auto *window = m_delegate->window();
        QVERIFY(convert("deaf|reports:3000:20000"));
        QVERIFY(!window->close());
        QCOMPARE(m_user.read, QStringList(question));
        QCOMPARE(m_delegate->uiState(), State::Converting);
        m_user.saysYes = true;
        QVERIFY(!window->close());
        QVERIFY(window->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), 10000);
        QCOMPARE(files(), QStringList{ u"video.mov"_s });
    }

    void close_isTakenBackByTheNextVideo()
    {
        auto *window = m_delegate->window();
        QVERIFY(convert("deaf|reports:3000:20000"));
        m_user.saysYes = true;
        QVERIFY(!window->close());
        ToolSwap::setScript("exit:0");
        QVERIFY(waitFor(State::InitialState));
        m_delegate->takeFiles({ m_video });
        QVERIFY(waitFor(State::CoverIsSet));
        QTRY_COMPARE_WITH_TIMEOUT(Processes::children(), QStringList(), 10000);
        QTest::qWait(50);
        QVERIFY(window->isVisible() && window->isEnabled());
    }

    void desktop_isTold()
    {
        const QVariant request = QVariant::fromValue(QDBusObjectPath(u"/request"_s));
        DesktopStandIn desktop({ fileManager, notifications, portal },
            { { u"ShowItems"_s, {} }, { u"Notify"_s, { 7U } }, { u"Inhibit"_s, { request } },
                { u"Close"_s, {} }, { u"CloseNotification"_s, {} } });
        m_user.names << u"<b>a?b#100%d & \"x\" %41\u00fc"_s;
        QVERIFY(convert("reports:100:15000|exit:0"));
        QWidget front;
        front.show();
        front.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&front));
        QTRY_COMPARE(desktop.calls(u"Inhibit"_s).size(), 1);
        QCOMPARE(desktop.argument(u"Inhibit"_s, 1), QVariant(4U | 8U));
        QCOMPARE(desktop.calls(u"Close"_s).size(), 0);
        QVERIFY(waitFor(State::ConversionIsDone));
        QTRY_COMPARE(desktop.calls(u"Close"_s).size(), 1);
        QCOMPARE(desktop.calls(u"Close"_s).constFirst().path(), u"/request"_s);
        QTRY_COMPARE(desktop.calls(u"Notify"_s).size(), 1);
        QCOMPARE(desktop.argument(u"Notify"_s, 4).toString(),
            u"&lt;b&gt;a?b#100%d &amp; &quot;x&quot; %41\u00fc.mkv"_s);
        QCOMPARE(desktop.argument(u"Notify"_s, 5).toStringList().value(0), u"default"_s);

        desktop.click(6);
        desktop.click(7, u"other"_s);
        desktop.click(7);
        QTRY_COMPARE(desktop.calls(u"ShowItems"_s).size(), 1);
        QCOMPARE(desktop.argument(u"ShowItems"_s, 0).toStringList(),
            QStringList(u"file://"_s + m_folder->path()
                + u"/%3Cb%3Ea%3Fb%23100%25d%20&%20%22x%22%20%2541%C3%BC.mkv"_s));
        m_swap.reset();
        QVERIFY(open());
        QTRY_COMPARE(desktop.argument(u"CloseNotification"_s, 0), QVariant(7U));
    }

    void reveal_needsNoFileManager()
    {
        const DesktopStandIn desktop({ fileManager }, {});
        QVERIFY(convert("reports:100:100", State::ConversionIsDone));
        QDesktopServices::setUrlHandler(u"file"_s, this, "openFolder");
        click("openFolderImageView");
        QTRY_COMPARE(m_opened, QStringList(m_folder->path()));
        QTRY_COMPARE(Processes::children(), QStringList());
        QVERIFY(QFile::remove(path(u"result.mkv"_s)));
        QTest::keyClick(view("openFolderImageView"), Qt::Key_Return);
        QTRY_COMPARE(m_opened, QStringList({ m_folder->path(), m_folder->path() }));
        QCOMPARE(desktop.calls(u"ShowItems"_s).size(), 1);
        QDesktopServices::unsetUrlHandler(u"file"_s);
    }

    void keepAwake_releasesWhatComesTooLate()
    {
        const QVariant request = QVariant::fromValue(QDBusObjectPath(u"/request"_s));
        const DesktopStandIn desktop({ portal }, { { u"Inhibit"_s, { request } } });
        KeepAwake awake;
        awake.start(u"Converting"_s);
        // No answer arrives before the event loop runs.
        awake.stop();
        QTRY_COMPARE(desktop.calls(u"Close"_s).size(), 1);
        QCOMPARE(desktop.calls(u"Close"_s).constFirst().path(), u"/request"_s);
    }

    void colors_followTheDesktop()
    {
        const auto isDark
            = [] { return QApplication::palette().color(QPalette::Window).lightness() < 128; };
        const QPalette former = QApplication::palette();
        const QVariant dark = QVariant::fromValue(QDBusVariant(1U));
        const QVariant light = QVariant::fromValue(QDBusVariant(2U));
        DesktopStandIn desktop(
            { portal }, { { u"Read"_s, { QVariant::fromValue(QDBusVariant(dark)) } } });
        const Appearance appearance;
        QVERIFY(!isDark());
        QTRY_VERIFY(isDark());
        QTRY_VERIFY(find<SpinningView>("spinner")->spinColor().lightness() > 128);
        desktop.send(QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                         u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s),
            { u"org.freedesktop.appearance"_s, u"color-scheme"_s, light });
        QTRY_VERIFY(!isDark());
        QApplication::setPalette(former);
    }
};

QTEST_MAIN(tst_run)
#include "tst_run.moc"
