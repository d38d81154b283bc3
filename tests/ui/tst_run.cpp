// SPDX-License-Identifier: MIT
#include "WindowTest.h"
#include "support/Bundle.h"
#include "tests/ui/desktop/DesktopStandIn.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/ProgressBar.h"
#include "ui/widgets/SpinningView.h"

#include <QDBusVariant>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr auto question
    = "Attention! Current converting process will be cancelled.\nAre you sure you want to continue?"_L1;

}

/// Conversions that fail, are cancelled or outlive their window, and what the desktop hears.
class tst_run : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    void cancel_asksFirst()
    {
        const auto swap = convertWith(QByteArray(hundredSeconds) + "reports:3000:20000");
        QVERIFY(waitFor(WindowUIState::Converting));
        QTRY_VERIFY(m_user->find<ProgressBar>("progressBar")->doubleValue() > 0.01);
        QTRY_VERIFY(m_delegate->window()->windowTitle().contains(u"% – "_s));
        QTest::keyClick(m_delegate->window(), Qt::Key_Escape);
        QCOMPARE(m_user->read, QStringList(question));
        QCOMPARE(m_delegate->uiState(), WindowUIState::Converting);

        m_user->saysYes = true;
        m_user->click("cancelProgressImageView");
        QVERIFY(waitFor(WindowUIState::InitialState, 1000));
        QCOMPARE(m_user->read, QStringList({ question, question }));
        QTRY_VERIFY(!QFile::exists(path(u"result.mkv"_s)));
        QTest::qWait(50);
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QVERIFY(!m_delegate->window()->windowTitle().contains(u'%'));
    }

    void programEnd_stopsTheRun()
    {
        const auto swap = convertWith(QByteArray(hundredSeconds) + "reports:3000:20000");
        QTRY_VERIFY(QFile::exists(path(u"result.mkv"_s)));
        m_user.reset();
        m_delegate.reset();
        QTRY_COMPARE(Processes::children(), QStringList());
        QTRY_VERIFY(!QFile::exists(path(u"result.mkv"_s)));
        QVERIFY(QFile::exists(m_video));
    }

    void failure_isTold_data()
    {
        using State = WindowUIState;
        addRows<QByteArray, Utf8, State>({ "script", "message", "state" },
            { { "exit status", "print:100%d of %@\\n|exit:1",
                  "Error processing 100%d %@.mov\nThe tool failed: 100%d of %@",
                  State::InitialState },
                { "signal", "signal:9",
                    "Error processing 100%d %@.mov\nThe tool was killed before it was done.",
                    State::InitialState },
                { "stopped short", QByteArray(hundredSeconds) + "reports:10:10000|exit:0", "",
                    State::ConversionIsDone },
                { "short after one report",
                    QByteArray(hundredSeconds)
                        + "print:time=00:00:05.00 bitrate\\n|sleep:50|exit:0",
                    "Error processing 100%d %@.mov\n"
                    "The converting progress was finished at 5s",
                    State::ConversionIsDone } });
    }
    void failure_isTold()
    {
        QFETCH(const QByteArray, script);
        QVERIFY(QFile::rename(m_video, path(u"100%d %@.mov"_s)));
        QVERIFY(open(u"100%d %@.mov"_s));
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script);
        m_user->names << u"result"_s;
        m_user->choose(u"MKV"_s);
        QFETCH(const QString, message);
        if (!message.isEmpty())
            QTRY_COMPARE(m_user->read, QStringList(message));
        QFETCH(const WindowUIState, state);
        QVERIFY(waitFor(state));
        QVERIFY(open(u"100%d %@.mov"_s) || state == WindowUIState::InitialState);
    }

    void lateFailure_namesItsOwnVideo()
    {
        QVERIFY(QFile::copy(m_video, path(u"next.mov"_s)));
        const auto swap = convertWith(
            QByteArray(hundredSeconds) + "reports:100:100|sleep:1500|print:late\\n|exit:1");
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        ToolSwap::setScript("exit:0");
        QVERIFY(open(u"next.mov"_s));
        QTRY_COMPARE(
            m_user->read, QStringList(u"Error processing video.mov\nThe tool failed: late"_s));
        QCOMPARE(m_delegate->uiState(), WindowUIState::CoverIsSet);
    }

    void missingTool_leavesTheWindowUsable()
    {
        QVERIFY(open(u"video.mov"_s));
        {
            const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::Nothing);
            m_user->names << u"result"_s;
            m_user->choose(u"MKV"_s);
            QVERIFY(waitFor(WindowUIState::InitialState));
            const QString reason = m_user->find<QLabel>("refusalLabel")->text();
            QVERIFY2(reason.contains(u"/ffmpeg/ffmpeg is missing"_s), qPrintable(reason));
            const ToolSwap probeSwap(u"ffprobe"_s, ToolSwap::With::UnexecutableFile);
            m_delegate->takeFiles({ m_video });
            QTRY_COMPARE(m_user->read, QStringList(u"Video not supported"_s));
        }
        QVERIFY(open(u"video.mov"_s));
    }

    void close_asksAndWaits()
    {
        auto *window = m_delegate->window();
        const auto swap = convertWith(QByteArray(hundredSeconds) + "deaf|reports:3000:20000");
        QVERIFY(waitFor(WindowUIState::Converting));
        QVERIFY(!window->close());
        QCOMPARE(m_user->read, QStringList(question));
        QCOMPARE(m_delegate->uiState(), WindowUIState::Converting);
        m_user->saysYes = true;
        QVERIFY(!window->close());
        QVERIFY(window->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), 10000);
        QVERIFY(!QFile::exists(path(u"result.mkv"_s)));
    }

    void close_isTakenBack()
    {
        auto *window = m_delegate->window();
        const auto swap = convertWith(QByteArray(hundredSeconds) + "deaf|reports:3000:20000");
        QVERIFY(waitFor(WindowUIState::Converting));
        m_user->saysYes = true;
        QVERIFY(!window->close());
        ToolSwap::setScript("exit:0");
        QVERIFY(waitFor(WindowUIState::InitialState));
        m_delegate->takeFiles({ m_video });
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        QTRY_COMPARE_WITH_TIMEOUT(Processes::children(), QStringList(), 10000);
        QTest::qWait(50);
        QVERIFY(window->isVisible() && window->isEnabled());
    }

    void close_leavesTheLastBytesAlone()
    {
        auto *window = m_delegate->window();
        const auto swap
            = convertWith(QByteArray(hundredSeconds) + "reports:100:100|sleep:500|exit:0");
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QVERIFY(!window->close());
        QTRY_VERIFY(!window->isVisible());
        QCOMPARE(m_user->read, QStringList());
        QVERIFY(QFile::exists(path(u"result.mkv"_s)));
    }

    void desktop_isTold()
    {
        DesktopStandIn desktop;
        for (const auto &service : { u"org.freedesktop.FileManager1"_s,
                 u"org.freedesktop.Notifications"_s, u"org.freedesktop.portal.Desktop"_s })
            QVERIFY(desktop.offer(service));
        desktop.answer(u"ShowItems"_s, {});
        desktop.answer(u"Notify"_s, { 7U });
        desktop.answer(u"Inhibit"_s, { QVariant::fromValue(QDBusObjectPath(u"/request"_s)) });
        desktop.answer(u"Close"_s, {});
        const auto swap = convertWith(QByteArray(hundredSeconds) + "reports:100:15000|exit:0");
        QVERIFY(waitFor(WindowUIState::Converting));
        QWidget front;
        front.show();
        front.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&front));
        QTRY_COMPARE(desktop.calls(u"Inhibit"_s).size(), 1);
        QCOMPARE(desktop.calls(u"Close"_s).size(), 0);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QTRY_COMPARE(desktop.calls(u"Close"_s).size(), 1);
        QTRY_COMPARE(desktop.calls(u"Notify"_s).size(), 1);

        QDBusMessage click = QDBusMessage::createSignal(u"/org/freedesktop/Notifications"_s,
            u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s);
        click << 7U << u"default"_s;
        desktop.send(click);
        QTRY_COMPARE(desktop.calls(u"ShowItems"_s).size(), 1);
        m_user->click("openFolderImageView");
        QTRY_COMPARE(desktop.calls(u"ShowItems"_s).size(), 2);
        for (const QDBusMessage &call : desktop.calls(u"ShowItems"_s))
            QCOMPARE(call.arguments().value(0).toStringList(), QStringList(url(u"result.mkv"_s)));
    }

    void colors_followTheDesktop()
    {
        const auto isDark
            = [] { return QApplication::palette().color(QPalette::Window).lightness() < 128; };
        const QPalette former = QApplication::palette();
        DesktopStandIn desktop;
        QVERIFY(desktop.offer(u"org.freedesktop.portal.Desktop"_s));
        const QVariant dark = QVariant::fromValue(QDBusVariant(1U));
        desktop.answer(u"Read"_s, { QVariant::fromValue(QDBusVariant(dark)) });
        const Appearance appearance;
        QVERIFY(!isDark());
        QTRY_VERIFY(isDark());
        QTRY_VERIFY(m_user->find<SpinningView>("spinner")->spinColor().lightness() > 128);
        QDBusMessage change = QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
            u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        change << u"org.freedesktop.appearance"_s << u"color-scheme"_s
               << QVariant::fromValue(QDBusVariant(2U));
        desktop.send(change);
        QTRY_VERIFY(!isDark());
        QApplication::setPalette(former);
    }
};

QTEST_MAIN(tst_run)
#include "tst_run.moc"
