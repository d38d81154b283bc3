// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "support/Console.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/ToolSwap.h"
#include "tests/ui/User.h"
#include "ui/widgets/DropBox.h"
#include "ui/window/AppDelegate.h"

#include <QApplication>
#include <QMenu>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr int actionCount = 1000;
constexpr char video[] = "bytes that only the fake tool takes for a video";
constexpr char hundredSeconds[] = "print:Duration: 00:01:40.00, start: 0.000000 |";

// All tools run the same script, so the chatter of the conversion is a text inside the answer of
// the probe.
QByteArray beginning(qsizetype size)
{
    return R"(out:{"format":{"duration":"100.0","size":")" + QByteArray::number(size)
        + R"("},"streams":[],"chatter":"|)";
}

constexpr char ending[] = R"(out:"}|)";

}

/// Does what a user may do in any order, however quick, while the tools answer well, late, wrongly
/// or not at all, and looks after each step whether the window is one that can be gone on with.
class tst_any_order : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_video = m_folder.filePath(u"video.mov"_s);
    QRandomGenerator m_random;
    std::unique_ptr<AppDelegate> m_delegate;
    std::unique_ptr<User> m_user;

    int below(int limit) { return m_random.bounded(limit); }

    /// A tool that does for the probe, the cover and the conversion, well or badly.
    void chooseToolBehaviour()
    {
        const QByteArray probe = below(8) ? beginning(sizeof video - 1) : "out:no video|";
        const QByteArray length = below(6) ? hundredSeconds : "print:Duration: N/A, start: 0 |";
        const QByteArray courses[] = { "reports:20:500|", "reports:200:2000|", "reports:3:0|",
            "reports:10:100|", "print:time=00:00:03.00 bitrate|", "sleep:30|",
            "deaf|reports:100:1000|", "flood:100000|" };
        const QByteArray ends[] = { "exit:0", "exit:0", "exit:0", "exit:1", "signal:9" };
        const QByteArray lateness = below(4) ? QByteArray() : QByteArray("sleep:40|");
        ToolSwap::setScript(lateness + probe + length + "output|"
            + courses[below(int(std::size(courses)))] + ending + ends[below(int(std::size(ends)))]);
    }

    void act()
    {
        m_user->saysYes = below(2) == 1;
        m_user->names.clear();
        switch (below(13)) {
        case 0:
        case 1:
            m_user->drop({ QUrl::fromLocalFile(m_video).toString() });
            break;
        case 2:
            m_user->names << (below(3) ? m_video : m_folder.filePath(u"gone.mov"_s));
            m_user->find<QAction>("openAction")->trigger();
            break;
        case 3:
            m_delegate->takeFiles({ below(2) ? m_video : m_folder.path() });
            break;
        case 4:
        case 5:
        case 6:
            convert();
            break;
        case 7:
            QTest::keyClick(m_delegate->window(), Qt::Key_Escape);
            break;
        case 8:
            if (m_user->view("startOverButton")->isVisible())
                m_user->click("startOverButton");
            break;
        case 9:
            m_delegate->window()->close();
            break;
        case 10:
            m_delegate->applicationShouldHandleReopen(m_delegate->window()->isVisible());
            break;
        default:
            QTest::qWait(below(30));
        }
        // Mostly with the patience that it takes to get on.
        const WindowUIState state = m_delegate->uiState();
        const bool works
            = state == WindowUIState::WaitingForCover || state == WindowUIState::Converting;
        if (works && below(3))
            std::ignore = QTest::qWaitFor([&] { return m_delegate->uiState() != state; }, 150);
        QCoreApplication::processEvents();
    }

    void convert()
    {
        const QMenu *menu = m_user->find<QMenu>("formatMenu");
        const QList<QAction *> items = menu->actions();
        QAction *item = items[below(int(items.size()))];
        if (below(3))
            m_user->names << u"result"_s + QString::number(below(3));
        if (menu->menuAction()->isEnabled() && item->isEnabled())
            item->trigger();
    }

    [[nodiscard]] bool waitUntilSettled()
    {
        return QTest::qWaitFor(
            [this] {
                return allowDragDrop(m_user->view("dropAcceptor"))
                    && !QApplication::activeModalWidget() && m_delegate->window()->isEnabled();
            },
            20000);
    }

private Q_SLOTS:
    void init()
    {
        Console::setSink([](const QString &) {});
        QApplication::setQuitOnLastWindowClosed(false);
        QApplication::setApplicationName(u"tst_any_order"_s);
        QFile file(m_video);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(video) == sizeof video - 1);
        const QByteArray seed = qgetenv("SEED");
        const quint32 number
            = seed.isEmpty() ? QRandomGenerator::global()->generate() : seed.toUInt();
        qInfo("SEED=%u", number);
        m_random.seed(number);
        m_delegate = std::make_unique<AppDelegate>();
        m_user = std::make_unique<User>(*m_delegate->window());
        m_delegate->applicationDidFinishLaunching();
        m_delegate->window()->show();
    }

    void actions_leaveAUsableWindow()
    {
        const ToolSwap probe(u"ffprobe"_s, ToolSwap::With::FakeTool);
        const ToolSwap tool(u"ffmpeg"_s, ToolSwap::With::FakeTool);
        QSet<WindowUIState> seen;
        for (int step = 0; step < actionCount; ++step) {
            chooseToolBehaviour();
            act();
            const WindowUIState state = m_delegate->uiState();
            seen << state;
            QCOMPARE(m_user->view("progressBar")->isHidden(), state != WindowUIState::Converting);
            QCOMPARE(m_user->view("startOverButton")->isHidden(),
                state != WindowUIState::ConversionIsDone);
            QCOMPARE(m_user->view("dragFileHereLabel")->isHidden(),
                state != WindowUIState::InitialState);
            if (step % 100 != 0)
                continue;
            QVERIFY2(waitUntilSettled(), qPrintable(u"stuck after step %1"_s.arg(step)));
            QTRY_COMPARE_WITH_TIMEOUT(Processes::children(), QStringList(), 10000);
            QFile file(m_video);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), QByteArray(video));
        }
        QCOMPARE(seen.size(), 5);
        m_delegate.reset();
        FFMPEG::shutDown();
    }
};

QTEST_MAIN(tst_any_order)
#include "tst_any_order.moc"
