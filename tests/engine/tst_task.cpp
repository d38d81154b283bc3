// SPDX-License-Identifier: MIT
#include "engine/Async.h"
#include "engine/Task.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <latch>
#include <sys/socket.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class ThrowingTask : public Task {
public:
    void launch() override { thrower(); }
    std::function<void()> thrower;
};

QByteArray outputOf(const QByteArray &script, const ToolAccess &access = {})
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script);
    Task task;
    task.setLaunchPath(toolPath(Tool::Ffmpeg));
    task.setAccess(access);
    task.launch();
    const QByteArray output = task.readDataToEndOfFile();
    return output + '=' + QByteArray::number(task.terminationStatus());
}

}

/// What goes on beside the main thread: tools and blocks.
class TestTask : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(Processes::children(), QStringList()); }

    void tryLaunch_reportsWhatCantBeExecuted()
    {
        using With = ToolSwap::With;
        for (const With replacement : { With::Nothing, With::UnexecutableFile }) {
            const ToolSwap swap(u"ffmpeg"_s, replacement);
            Task task;
            task.setLaunchPath(toolPath(Tool::Ffmpeg));
            LaunchError error;
            QVERIFY(!task.tryLaunch(&error));
            QCOMPARE(error.domain, u"NSInvalidArgumentException"_s);
            QCOMPARE(error.code, 0);
            QVERIFY2(error.localizedDescription.contains(toolPath(Tool::Ffmpeg)),
                qPrintable(error.localizedDescription));
            QVERIFY(!task.isRunning() && !task.tryLaunch());
        }
    }

    void tryLaunch_guardsOnlyInvalidArguments()
    {
        LaunchError error{ u"left from before"_s, 1, u"text"_s };
        ThrowingTask task;
        task.thrower = [] { throw 42; };
        QVERIFY(task.tryLaunch(&error));
        QVERIFY(error.domain.isEmpty() && error.localizedDescription.isEmpty());
        task.thrower = [] { throw LaunchException{ u"NSGenericException"_s, u"why"_s }; };
        QVERIFY_THROWS_EXCEPTION(LaunchException, task.tryLaunch(&error));
    }

    void output_isDrainedBeforeTheTaskCountsAsEnded()
    {
        // The tool ends at once after its last words, often before anybody has looked at the pipe.
        const ToolSwap swap(
            u"ffmpeg"_s, ToolSwap::With::FakeTool, "flood:30720|print:the end|exit:0");
        for (int i = 0; i < 100; ++i) {
            Task task;
            task.setLaunchPath(toolPath(Tool::Ffmpeg));
            task.launch();
            if (i % 2 == 0)
                QThread::usleep(5000);
            QByteArray output;
            while (task.isRunning())
                output += task.availableData();
            QCOMPARE(output.size(), 30720 + 7);
            QVERIFY(output.endsWith("the end"));
        }
    }

    void readDataToEndOfFile_givesUp()
    {
        Task::setSilenceLimit(1s);
        QVERIFY(outputOf("print:hello|forever").startsWith("hello="));
        // One that works is left alone.
        QCOMPARE(outputOf("busy:3000|print:done"), "done=0");
        const QTemporaryDir folder;
        const QString result = folder.filePath(u"result"_s);
        QVERIFY(QFile(result).open(QIODevice::WriteOnly));
        QCOMPARE(
            outputOf("grow:3000:" + result.toUtf8() + "|print:done", { {}, { result } }), "done=0");
        Task::setSilenceLimit(300s);
        const qsizetype flood = outputOf("flood:100000000000").size();
        QVERIFY2(flood > 60'000'000 && flood < 80'000'000, qPrintable(QString::number(flood)));
    }

    void sandbox_refusesWhatIsNotNeeded_data()
    {
        const QByteArray allowed = "allowed =0";
        const QByteArray refused = "Permission denied =0";
        const auto socket = [](int family) { return "socket:" + QByteArray::number(family); };
        addRows<QByteArray, QByteArray>({ "attempt", "answer" },
            { { "reads the source", "read:SOURCE/video.mp4", allowed },
                { "reads the source's neighbour", "read:SOURCE/diary.txt", refused },
                { "writes the source", "write:SOURCE/video.mp4", refused },
                { "empties the source", "truncate:SOURCE/video.mp4", refused },
                { "removes the source", "remove:SOURCE/video.mp4", refused },
                { "empties by reading", "readtruncate:SOURCE/video.mp4",
                    "Operation not permitted =0" },
                { "hides the source", "chmod:SOURCE/video.mp4", refused },
                { "writes the result", "write:DEST/result.mp4", allowed },
                { "removes the result", "remove:DEST/result.mp4", refused },
                { "moves the result", "rename:DEST/result.mp4", refused },
                { "makes a file", "write:DEST/new.txt", refused },
                { "makes a folder", "mkdir:DEST/folder", refused },
                { "empties the result's neighbour", "write:DEST/other.txt", refused },
                { "cuts the result's neighbour", "truncate:DEST/other.txt", refused },
                { "moves the result's neighbour", "rename:DEST/other.txt", refused },
                { "removes the result's neighbour", "remove:DEST/other.txt", refused },
                { "reads the destination", "read:DEST/other.txt", refused },
                { "lists the home folder", "read:HOME", refused },
                { "reads in the home folder", "read:HOME/secret", refused },
                { "writes to the home folder", "write:HOME/secret", refused },
                { "writes to the temporary folder", "write:TEMP/elsewhere", refused },
                { "reads the users", "read:/etc/passwd", refused },
                { "reads a library", "read:/usr/bin/env", allowed },
                { "reads the null device", "read:/dev/null", allowed },
                { "runs a program of the user's", "exec:HOME/program", refused },
                { "IPv4 socket", socket(AF_INET), refused },
                { "IPv6 socket", socket(AF_INET6), refused },
                { "local socket", socket(AF_UNIX), refused },
                { "traces the parent", "ptrace", refused },
                { "signals the parent", "kill:parent", "Operation not permitted =0" },
                { "signals all", "kill:group", "Operation not permitted =0" },
                { "signals itself", "kill:self", allowed },
                { "starts processes", "fork", "Operation not permitted =0" },
                { "starts threads", "threads:64", allowed },
                { "starts threads without end", "threads:1000000", "no more =0" },
                { "takes more addresses than any video", "memory", "Cannot allocate memory =0" },
                { "opens files without end", "descriptors", "Too many open files =0" } });
    }
    void sandbox_refusesWhatIsNotNeeded()
    {
        if (!Sandbox(u"/usr/bin/ffmpeg"_s, {}).isConfining())
            QSKIP("this kernel offers no sandbox");
        QFETCH(QByteArray, attempt);
        const QTemporaryDir source;
        const QTemporaryDir dest;
        const QTemporaryDir home;
        const QString video = source.filePath(u"video.mp4"_s);
        for (const QString &path : { video, source.filePath(u"diary.txt"_s),
                 dest.filePath(u"other.txt"_s), dest.filePath(u"result.mp4"_s),
                 home.filePath(u"secret"_s), home.filePath(u"program"_s) }) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        }
        attempt.replace("SOURCE", QFile::encodeName(source.path()));
        attempt.replace("DEST", QFile::encodeName(dest.path()));
        attempt.replace("HOME", QFile::encodeName(home.path()));
        attempt.replace("TEMP", QFile::encodeName(QDir::tempPath()));
        QTEST(outputOf(attempt, { { video }, { dest.filePath(u"result.mp4"_s) } }), "answer");
    }

    void background_jobsOverlapAndComeBack()
    {
        // Each waits for the other, so one after the other they would never end.
        auto both = std::make_shared<std::latch>(2);
        int ran = 0;
        const auto run = [&ran] {
            ran += QThread::currentThread() == QCoreApplication::instance()->thread() ? 1 : 1000;
        };
        for (int i = 0; i < 2; ++i) {
            Async::background([both, run] {
                both->arrive_and_wait();
                Async::async(run);
            });
        }
        Async::async(run);
        Async::delay(0, run);
        QCOMPARE(ran, 0);
        QTRY_COMPARE(ran, 4);
        QCOMPARE(Async::backgroundSerialQueue()->label(), u"ext.serial.backgroundQueue"_s);
    }

    void queue_runsItsBlocksInOrder()
    {
        auto queue = Async::backgroundSerialQueue();
        std::vector<int> order;
        for (int i = 0; i < 100; ++i) {
            Async::async(queue, [&order, i] { order.push_back(i); });
        }
        // The queue's last block runs although nobody holds the queue any more.
        queue.reset();
        SerialQueue::waitForAll();
        QCOMPARE(order.size(), 100U);
        QVERIFY(std::ranges::is_sorted(order));
    }
};

QTEST_GUILESS_MAIN(TestTask)
#include "tst_task.moc"
