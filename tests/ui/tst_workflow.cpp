// SPDX-License-Identifier: MIT
#include "analytics/Analytics.h"
#include "engine/FFMPEG.h"
#include "support/Bundle.h"
#include "support/Console.h"
#include "support/Defaults.h"
#include "support/Preferences.h"
#include "tests/analytics/Collector.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"
#include "tests/ui/User.h"
#include "tests/ui/desktop/DesktopStandIn.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/DropBox.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/ProgressBar.h"
#include "ui/widgets/SpinningView.h"
#include "ui/window/AppDelegate.h"

#include <QApplication>
#include <QClipboard>
#include <QDBusVariant>
#include <QDir>
#include <QDrag>
#include <QFileOpenEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr auto question
    = "Attention! Current converting process will be cancelled.\nAre you sure you want to continue?"_L1;
constexpr char hundredSeconds[] = "print:Duration: 00:01:40.00, start: 0.000000\\n|output|";

}

class tst_workflow : public QObject {
    Q_OBJECT

private:
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
        if (!open(u"video.mov"_s))
            return nullptr;
        auto swap = std::make_unique<ToolSwap>(u"ffmpeg"_s, ToolSwap::With::FakeTool, script);
        m_user->names << u"result"_s;
        m_user->choose(u"MKV"_s);
        return swap;
    }

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([](const QString &) {});
        QApplication::setQuitOnLastWindowClosed(false);
        QApplication::setApplicationName(u"tst_workflow"_s);
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        Defaults::remove(u"LastSaveFolder"_s);
        Defaults::remove(u"LastOpenFolder"_s);
        m_video = path(u"video.mov"_s);
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

    void video_becomesAnother()
    {
        QVERIFY(open(u"video.mov"_s));
        QCOMPARE(m_user->find<QLabel>("movieNameLabel")->text(), u"video.mov"_s);
        QCOMPARE(m_user->find<QLabel>("movieDurationLabel")->text(), u"3s"_s);
        QVERIFY(!m_user->find<ImageView>("movieCoverImageView")->image().isNull());
        QCOMPARE(m_delegate->selectedFileExt(), u"mov"_s);

        m_user->acceptsProposal = true;
        m_user->choose(u"WebM"_s);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QCOMPARE(m_user->proposal, u"video.webm"_s);
        QCOMPARE(m_delegate->resultFilePath(), path(u"video.webm"_s));
        QTRY_COMPARE(Processes::children(), QStringList());
        QCOMPARE(Media::streamEntry(path(u"video.webm"_s), u"v:0"_s, u"codec_name"_s), u"vp8"_s);
        QCOMPARE(m_user->read, QStringList());

        m_user->click("startOverButton");
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QVERIFY(open(u"video.webm"_s));
    }

    void usage_isTold()
    {
        const Collector collector;
        qputenv("VIDEO_CONVERTER_COLLECTOR_URL", collector.url().toUtf8());
        Analytics::start();
        Preferences::setFirstRun(true);
        m_delegate->applicationDidFinishLaunching();
        m_user->names << m_video;
        m_user->click("openFromFolderLabel");
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        {
            const auto swap = convertWith(QByteArray(hundredSeconds) + "reports:3000:20000");
            QVERIFY(waitFor(WindowUIState::Converting));
            m_user->saysYes = true;
            m_user->click("cancelProgressButton");
            QVERIFY(waitFor(WindowUIState::InitialState));
        }
        const auto swap = convertWith(QByteArray(hundredSeconds) + "reports:100:100");
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        m_user->click("startOverButton");

        // Each comes on a connection of its own, in any order.
        QStringList told{ u"behavior firstrun true"_s, u"adding_video click true"_s,
            u"adding_video drag true"_s, u"adding_video drag true"_s, u"adding_video size 0-1"_s,
            u"adding_video size 0-1"_s, u"adding_video size 0-1"_s, u"convert from_to mkv_MKV"_s,
            u"convert from_to mkv_MKV"_s, u"convert abort true"_s,
            u"convert convert_another true"_s };
        told.sort();
        QTRY_COMPARE(collector.requests.size(), told.size());
        qunsetenv("VIDEO_CONVERTER_COLLECTOR_URL");
        QStringList events;
        for (const Collector::Request &request : collector.requests) {
            const QJsonObject hit = request.hit();
            events << hit[u"ec"_s].toString() + u' ' + hit[u"ea"_s].toString() + u' '
                    + hit[u"el"_s].toVariant().toString();
        }
        events.sort();
        QCOMPARE(events, told);
    }

    void keyboard_isEnough()
    {
        auto *window = m_delegate->window();
        m_user->names << m_video << u"by keyboard"_s;
        QTest::keyClick(window, Qt::Key_O, Qt::ControlModifier);
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        QCOMPARE(QApplication::focusWidget(), m_user->view("convertToButton"));
        QTimer::singleShot(0, this, [this] {
            auto *menu = m_user->find<QMenu>("formatMenu");
            QTest::keyClick(menu, Qt::Key_Up);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QCOMPARE(m_delegate->resultFilePath(), path(u"by keyboard.mp4"_s));
        QCOMPARE(QApplication::focusWidget(), m_user->view("openFolderImageView"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QVERIFY(m_user->view("openFromFolderLabel")->hasFocus());
        m_user->names << m_video;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
    }

    void file_arrivesOnEveryWay_data()
    {
        addRows<Utf8>({ "way" },
            { { "label", "label" }, { "menu", "menu" }, { "paste", "paste" },
                { "open event", "open event" }, { "take", "take" } });
    }
    void file_arrivesOnEveryWay()
    {
        QFETCH(const QString, way);
        QTest::mouseMove(m_delegate->window());
        QMimeData files;
        const auto bring = [&] {
            if (way == "label"_L1 || way == "menu"_L1) {
                m_user->names = { m_video };
                way == "label"_L1 ? m_user->click("openFromFolderLabel")
                                  : m_user->find<QAction>("openAction")->trigger();
            } else if (way == "paste"_L1) {
                auto *copied = new QMimeData;
                copied->setUrls({ QUrl::fromLocalFile(m_video) });
                QApplication::clipboard()->setMimeData(copied);
                QTest::keyClick(m_delegate->window(), Qt::Key_V, Qt::ControlModifier);
            } else if (way == "open event"_L1) {
                QFileOpenEvent event(m_video);
                QApplication::sendEvent(qApp, &event);
            } else {
                m_delegate->takeFiles({ m_video, u"/ignored"_s });
            }
        };
        // Only while drops are.
        m_delegate->setUiState(WindowUIState::Converting);
        bring();
        QTest::qWait(20);
        QCOMPARE(m_delegate->uiState(), WindowUIState::Converting);
        QCOMPARE(m_user->sheets, 0);
        m_delegate->setUiState(WindowUIState::InitialState);
        bring();
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
        QCOMPARE(m_delegate->processingFilePath(), m_video);
    }

    void video_isDraggedByThePointer()
    {
        QWidget source;
        source.setGeometry(900, 700, 60, 60);
        source.show();
        QVERIFY(QTest::qWaitForWindowExposed(&source));
        auto *data = new QMimeData;
        data->setUrls({ QUrl::fromLocalFile(m_video) });
        QWindow *target = m_delegate->window()->windowHandle();
        const QPoint middle = QRect({}, target->size()).center();
        for (const int step : { 1, 2, 3, 4 })
            QTimer::singleShot(
                step * 100, target, [=] { QTest::mouseMove(target, middle + QPoint(step, step)); });
        QTimer::singleShot(
            600, target, [=] { QTest::mouseRelease(target, Qt::LeftButton, {}, middle); });
        auto *drag = new QDrag(&source);
        drag->setMimeData(data);
        QTest::mousePress(source.windowHandle(), Qt::LeftButton);
        QCOMPARE(drag->exec(Qt::CopyAction), Qt::CopyAction);
        QVERIFY(waitFor(WindowUIState::CoverIsSet));
    }

    void drop_ofSomethingElseIsIgnored()
    {
        QVERIFY(!m_user->drop({}));
        m_user->drop({ u"http://localhost/video.mov"_s });
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        // While a message stands, too.
        m_user->whileReading = [this] {
            m_user->whileReading = {};
            m_user->drop({ url(u"video.mov"_s) });
            m_delegate->takeFiles({ m_video });
        };
        m_delegate->takeFiles({ path(u"gone.mov"_s) });
        QTRY_COMPARE(m_user->read.size(), 1);
        QTest::qWait(50);
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
    }

    void badFile_isRefused_data()
    {
        addRows<Utf8, Utf8>({ "name", "sentence" },
            { { "folder", "folder.mov", "This is a folder, not a video." },
                { "gone", "gone.mov", "There is no such file." },
                { "empty", "empty.mov", "The file is empty." },
                { "text", "text.mov",
                    "The file is not a video, or it is damaged or incomplete." } });
    }
    void badFile_isRefused()
    {
        QFETCH(const QString, name);
        QDir(m_folder->path()).mkdir(u"folder.mov"_s);
        QVERIFY(QFile(path(u"empty.mov"_s)).open(QIODevice::WriteOnly));
        QFile text(path(u"text.mov"_s));
        QVERIFY(
            text.open(QIODevice::WriteOnly) && text.write("no video at all\n") > 0 && text.flush());
        QVERIFY(open(u"video.mov"_s));
        QVERIFY(m_user->drop({ url(name) }));
        QTRY_COMPARE(m_user->read, QStringList(u"Video not supported"_s));
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QCOMPARE(m_delegate->processingFilePath(), m_video);
        auto *reason = m_user->find<QLabel>("refusalLabel");
        QTRY_VERIFY(reason->isVisible() && !reason->text().isEmpty());
        QTEST(reason->text(), "sentence");
        QVERIFY(open(u"video.mov"_s));
        QVERIFY(!reason->isVisible() && reason->text().isEmpty());
    }

    void sheets_canBeLeft()
    {
        m_user->click("openFromFolderLabel");
        QTRY_COMPARE(m_user->sheets, 1);
        QCOMPARE(m_delegate->uiState(), WindowUIState::InitialState);
        QVERIFY(open(u"video.mov"_s));
        for (const int count : { 2, 3 }) {
            m_user->choose(u"GIF"_s);
            QTRY_COMPARE(m_user->sheets, count);
            QTRY_VERIFY(!QApplication::activeModalWidget());
            QCOMPARE(m_delegate->uiState(), WindowUIState::CoverIsSet);
        }
        const QAction unknown(u"Betamax"_s);
        m_delegate->rawFormatMenuItemPressed(&unknown);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void source_isNeverTheDestination()
    {
        QVERIFY(QFile::rename(m_video, path(u"video.mp4"_s)));
        QVERIFY(QFile::link(path(u"video.mp4"_s), path(u"link.mp4"_s)));
        const qint64 size = QFileInfo(path(u"video.mp4"_s)).size();
        QVERIFY(open(u"video.mp4"_s));
        m_user->saysYes = true;
        m_user->names << u"video.mp4"_s << u"./link.mp4"_s << u"other"_s;
        m_user->choose(u"MP4"_s);
        QVERIFY(waitFor(WindowUIState::ConversionIsDone));
        QCOMPARE(m_user->proposal, u"video 2.mp4"_s);
        QCOMPARE(m_user->sheets, 3);
        QCOMPARE(m_user->read.count(u"The video can't be converted into itself"_s), 2);
        QCOMPARE(m_delegate->resultFilePath(), path(u"other.mp4"_s));
        QCOMPARE(QFileInfo(path(u"video.mp4"_s)).size(), size);
    }

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

QTEST_MAIN(tst_workflow)
#include "tst_workflow.moc"
