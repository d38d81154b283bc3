// SPDX-License-Identifier: MIT
#include "tests/ui/WindowTest.h"
#include "tests/ui/desktop/DesktopStandIn.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/SpinningView.h"

#include <QDBusVariant>
#include <QDesktopServices>
#include <QPlainTextEdit>
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
        QVERIFY(QFile::copy(m_video, path(u"next.mov"_s)));
        QVERIFY(convert("reports:3000:20000"));
        QTRY_VERIFY(find<QProgressBar>("progressBar")->value() > 100);
        QVERIFY(said("workLabel").startsWith(u"MKV · Copying picture and sound · "_s));
        QTRY_VERIFY(m_delegate->window()->windowTitle().contains(u"% – "_s));
        QTest::keyClick(m_delegate->window(), Qt::Key_Escape);
        QCOMPARE(m_user.read, QStringList(question));
        QCOMPARE(m_delegate->uiState(), State::Converting);
        // Files from elsewhere are not lost while a video is converted.
        m_delegate->takeFiles({ path(u"next.mov"_s) });
        QVERIFY(view("keptLabel")->isVisible());
        m_delegate->takeFiles({ m_video, path(u"next.mov"_s) });
        QCOMPARE(said("keptLabel"), u"Next: “next.mov”"_s);

        m_swap.reset();
        m_user.saysYes = true;
        click("cancelProgressImageView");
        QVERIFY(waitFor(State::InitialState, 1000));
        QCOMPARE(m_user.read, QStringList({ question, question }));
        QVERIFY(waitFor(State::CoverIsSet));
        QCOMPARE(m_delegate->processingFilePath(), path(u"next.mov"_s));
        QVERIFY(open(u"next.mov"_s));
        QCOMPARE(said("keptLabel"), u"Next: “video.mov”"_s);
        m_user.whileAnswering = [this] {
            m_delegate->applicationShouldHandleReopen(false);
            m_delegate->takeFiles({ path(u"next.mov"_s) });
            QTest::qWait(100);
            QVERIFY(QApplication::activeModalWidget()->isActiveWindow());
        };
        choose(u"MKV"_s);
        QTRY_COMPARE(m_delegate->processingFilePath(), m_video);
        QTRY_COMPARE(said("keptLabel"), u"Next: “next.mov”"_s);
        QVERIFY(waitFor(State::CoverIsSet));
        click("keptLabel");
        QTRY_COMPARE(m_delegate->processingFilePath(), path(u"next.mov"_s));
        QVERIFY(!view("keptLabel")->isVisible());
        QTRY_COMPARE(files(), QStringList({ u"next.mov"_s, u"video.mov"_s }));
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

    void failure_isSaid()
    {
        QVERIFY(QFile::rename(m_video, path(u"100%d %@.mov"_s)));
        m_user.whileAnswering = [this] { m_delegate->takeFiles({ path(u"100%d %@.mov"_s) }); };
        QVERIFY(convert("print:100%d of %@\\n|exit:1", State::InitialState, u"100%d %@.mov"_s));
        QTRY_COMPARE(m_user.read,
            QStringList(u"Error processing 100%d %@.mov\nThe tool failed: 100%d of %@"_s));
        QTest::qWait(50);
        QVERIFY(view("keptLabel")->isVisible() && m_delegate->uiState() == State::InitialState);
        QCOMPARE(said("refusalLabel"), u"The tool failed: 100%d of %@"_s);
        click("logLabel");
        auto *log = m_delegate->window()->findChild<QPlainTextEdit *>();
        QVERIFY(log && log->toPlainText().contains(u"100%d of %@"_s));
        log->window()->close();
        click("anotherFormatLabel");
        QCOMPARE(m_delegate->uiState(), State::CoverIsSet);
        QVERIFY(!find<ImageView>("movieCoverImageView")->grab().toImage().allGray());
        m_delegate->setUiState(State::InitialState);
        QVERIFY(view("anotherFormatLabel")->isHidden() && view("logLabel")->isHidden());
        QCOMPARE(said("againLabel"), u"Open “100%d %@.mov” again"_s);
        m_swap.reset();
        click("againLabel");
        QVERIFY(waitFor(State::CoverIsSet));
        m_swap = std::make_unique<ToolSwap>(u"ffmpeg"_s, ToolSwap::With::Nothing);
        m_user.names << u"result"_s;
        choose(u"MKV"_s);
        QVERIFY(waitFor(State::InitialState));
        QVERIFY2(said("refusalLabel").contains(u"/ffmpeg/ffmpeg is missing"_s),
            qPrintable(said("refusalLabel")));
        QVERIFY(convert("exit:1", State::InitialState, u"100%d %@.mov"_s));
        QVERIFY(view("anotherFormatLabel")->isVisible());
        m_delegate->takeFiles({ u"/dev/null"_s });
        QTRY_COMPARE(m_user.read.last(), u"Video not supported"_s);
        QVERIFY(view("anotherFormatLabel")->isHidden());
    }

    void result_isCommentedOn()
    {
        const auto comment = [this](const QString &source, const QString &entry) {
            m_user.names << u"result"_s;
            if (!open(source))
                return u"not opened"_s;
            choose(entry);
            return waitFor(State::ConversionIsDone) ? said("remarksLabel") : u"not done"_s;
        };
        Media::ffmpeg({ u"-f"_s, u"lavfi"_s, u"-i"_s, u"testsrc=s=161x121:d=2"_s, u"-c:v"_s,
            u"mpeg4"_s, path(u"odd.avi"_s) });
        QCOMPARE(comment(u"odd.avi"_s, u"MP4"_s),
            u"The picture was made a little smaller, because this output needs even sizes."_s);
        QCOMPARE(
            said("secondTryLabel"), u"Second try, in another way: the first one could not work."_s);

        Media::video(path(u"cut.mkv"_s), 9);
        QVERIFY(QFile::resize(path(u"cut.mkv"_s), QFileInfo(path(u"cut.mkv"_s)).size() * 3 / 4));
        QVERIFY(QFile::rename(path(u"result.mp4"_s), path(u"result.mkv"_s)));
        m_user.saysYes = true;
        const QStringList lines = comment(u"cut.mkv"_s, u"MKV"_s).split(u'\n');
        QVERIFY2(lines.first().startsWith(u"The converting progress was finished at "_s),
            qPrintable(lines.first()));
        QCOMPARE(lines.last(), u"The older file was kept as “result (earlier).mkv”."_s);
        QCOMPARE(m_user.read.last(), u"Error processing cut.mkv\n"_s + lines.first());
        QVERIFY(view("remarksLabel")->isVisible() && said("secondTryLabel").isEmpty());
        QVERIFY(!find<ImageView>("movieCoverImageView")->image().isNull());
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
        ToolSwap::setScript("exit:0");
        QVERIFY(waitFor(State::InitialState));
        // The next video takes it back.
        m_delegate->takeFiles({ m_video });
        QVERIFY(waitFor(State::CoverIsSet));
        QTRY_COMPARE_WITH_TIMEOUT(Processes::children(), QStringList(), 10000);
        QTest::qWait(50);
        QVERIFY(window->isVisible() && window->isEnabled());

        QVERIFY(convert("deaf|reports:3000:20000"));
        m_delegate->takeFiles({ m_video });
        QVERIFY(!window->close() && window->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), 10000);
        QCOMPARE(files(), QStringList{ u"video.mov"_s });
    }

    void desktop_isInformed()
    {
        const QVariant request = QVariant::fromValue(QDBusObjectPath(u"/request"_s));
        DesktopStandIn desktop({ fileManager, notifications, portal },
            { { u"ShowItems"_s, {} }, { u"Notify"_s, { 7U } }, { u"Inhibit"_s, { request } },
                { u"Close"_s, {} }, { u"CloseNotification"_s, {} } });
        m_user.names << u"<b>a?b#100%d & \"x\" %41\u00fc"_s;
        QVERIFY(convert("copy|reports:100:15000|exit:0"));
        QWidget front;
        front.show();
        front.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&front));
        QTRY_COMPARE(desktop.argument(u"Inhibit"_s, 1), QVariant(4U | 8U));
        QCOMPARE(desktop.calls(u"Close"_s).size(), 0);
        QVERIFY(waitFor(State::ConversionIsDone));
        QTRY_COMPARE(desktop.calls(u"Close"_s).size(), 1);
        QCOMPARE(desktop.calls(u"Close"_s).constFirst().path(), u"/request"_s);
        QTRY_COMPARE(desktop.argument(u"Notify"_s, 4).toString(),
            u"&lt;b&gt;a?b#100%d &amp; &quot;x&quot; %41\u00fc.mkv"_s);
        QCOMPARE(desktop.argument(u"Notify"_s, 5).toStringList().value(0), u"default"_s);

        desktop.click(6);
        desktop.click(7, u"other"_s);
        desktop.click(7);
        QTRY_COMPARE(desktop.argument(u"ShowItems"_s, 0).toStringList(),
            QStringList(u"file://"_s + m_folder->path()
                + u"/%3Cb%3Ea%3Fb%23100%25d%20&%20%22x%22%20%2541%C3%BC.mkv"_s));
        m_swap.reset();
        QVERIFY(open());
        QTRY_COMPARE(desktop.argument(u"CloseNotification"_s, 0), QVariant(7U));
    }

    void result_isWithinReach()
    {
        const DesktopStandIn desktop({ fileManager }, {});
        QVERIFY(convert("copy|reports:100:100", State::ConversionIsDone));
        QPlainTextEdit target;
        target.resize(100, 100);
        target.show();
        QVERIFY(QTest::qWaitForWindowExposed(&target));
        const auto dragTo = [this](QWidget *place) {
            // The drag takes the events from here on until it ends.
            QTimer::singleShot(100, place, [place, middle = place->rect().center()] {
                QTest::mouseMove(place, middle - QPoint(10, 10));
                QTest::mouseMove(place, middle);
                QTest::mouseRelease(place, Qt::LeftButton, {}, middle);
            });
            auto *picture = view("movieCoverImageView");
            const QPoint start = picture->rect().center();
            const QPoint end = start + QPoint(40, 0);
            QTest::mousePress(picture, Qt::LeftButton, {}, start);
            QMouseEvent move(QEvent::MouseMove, end, picture->mapToGlobal(end), Qt::NoButton,
                Qt::LeftButton, {});
            QApplication::sendEvent(picture, &move);
        };
        dragTo(&target);
        QTRY_COMPARE(target.toPlainText(), url(u"result.mkv"_s));
        // The next press is no double click.
        QTest::qWait(QApplication::doubleClickInterval());
        dragTo(m_delegate->window());
        QCOMPARE(m_delegate->uiState(), State::ConversionIsDone);

        // There is no file manager to ask.
        QDesktopServices::setUrlHandler(u"file"_s, this, "openFolder");
        click("openFolderImageView");
        QTRY_COMPARE(m_opened, QStringList(m_folder->path()));
        click("openResultButton");
        QTRY_COMPARE(m_opened, QStringList({ m_folder->path(), path(u"result.mkv"_s) }));
        m_opened.removeLast();
        QTRY_COMPARE(Processes::children(), QStringList());
        QVERIFY(QFile::remove(path(u"result.mkv"_s)));
        QTest::keyClick(view("openFolderImageView"), Qt::Key_Return);
        QTRY_COMPARE(m_opened, QStringList({ m_folder->path(), m_folder->path() }));
        QCOMPARE(desktop.calls(u"ShowItems"_s).size(), 1);
        QDesktopServices::unsetUrlHandler(u"file"_s);
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
