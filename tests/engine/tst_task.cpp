// SPDX-License-Identifier: MIT
#include "engine/Task.h"
#include "support/Bundle.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/ToolSwap.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString toolPath() { return Bundle::main().bundlePath() + u"/Contents/ffmpeg/ffmpeg"_s; }

class ThrowingTask : public Task {
public:
    explicit ThrowingTask(std::function<void()> thrower)
        : m_thrower(std::move(thrower))
    {
    }
    void launch() override { m_thrower(); }

private:
    std::function<void()> m_thrower;
};

QByteArray outputOf(const QByteArray &script, int *status = nullptr)
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script);
    Task task;
    task.setLaunchPath(toolPath());
    task.launch();
    const QByteArray output = task.readDataToEndOfFile();
    if (status)
        *status = task.terminationStatus();
    return output;
}

}

class TestTask : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tryLaunch_reportsWhatCantBeExecuted_data();
    void tryLaunch_reportsWhatCantBeExecuted();
    void tryLaunch_guardsOnlyInvalidArguments();
    void output_ofBothStreamsIsReadInFull();
    void output_isDrainedBeforeTheTaskCountsAsEnded();
    void terminationStatus_isNeverZeroAfterASignal();
    void terminate_endsADeafToolThatFloods();
    void readDataToEndOfFile_givesUpOnASilentTool();
    void readDataToEndOfFile_givesUpOnAFloodingTool();
};

void TestTask::tryLaunch_reportsWhatCantBeExecuted_data()
{
    QTest::addColumn<ToolSwap::With>("replacement");
    QTest::newRow("missing") << ToolSwap::With::Nothing;
    QTest::newRow("not executable") << ToolSwap::With::UnexecutableFile;
}

void TestTask::tryLaunch_reportsWhatCantBeExecuted()
{
    QFETCH(ToolSwap::With, replacement);
    const ToolSwap swap(u"ffmpeg"_s, replacement);
    Task task;
    task.setLaunchPath(toolPath());
    LaunchError error;
    QVERIFY(!task.tryLaunch(&error));
    QCOMPARE(error.domain, u"NSInvalidArgumentException"_s);
    QCOMPARE(error.code, 0);
    QVERIFY2(
        error.localizedDescription.contains(toolPath()), qPrintable(error.localizedDescription));
    QVERIFY(!task.isRunning());
    QVERIFY(!task.tryLaunch());
}

void TestTask::tryLaunch_guardsOnlyInvalidArguments()
{
    LaunchError error{ u"left from before"_s, 1, u"text"_s };
    ThrowingTask stranger([] { throw 42; });
    QVERIFY(stranger.tryLaunch(&error));
    QVERIFY(error.domain.isEmpty() && error.localizedDescription.isEmpty());

    ThrowingTask other([] { throw LaunchException{ u"NSGenericException"_s, u"why"_s }; });
    try {
        other.tryLaunch(&error);
        QFAIL("an exception of another name must go on");
    } catch (const LaunchException &exception) {
        QCOMPARE(exception.name, u"NSGenericException"_s);
        QCOMPARE(exception.reason, u"why"_s);
    }
}

void TestTask::output_ofBothStreamsIsReadInFull()
{
    QCOMPARE(outputOf("print:first |out:second |sleep:50|print:third"),
        QByteArray("first second third"));
}

void TestTask::output_isDrainedBeforeTheTaskCountsAsEnded()
{
    // The tool ends at once after its last words, often before anybody has looked at the pipe.
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "flood:30720|print:the end|exit:0");
    for (int i = 0; i < 100; ++i) {
        Task task;
        task.setLaunchPath(toolPath());
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

void TestTask::terminationStatus_isNeverZeroAfterASignal()
{
    int status = 0;
    outputOf("signal:9", &status);
    QVERIFY(status != 0);
    outputOf("exit:3", &status);
    QCOMPARE(status, 3);
    outputOf("exit:0", &status);
    QCOMPARE(status, 0);
}

void TestTask::terminate_endsADeafToolThatFloods()
{
    const ToolSwap swap(
        u"ffmpeg"_s, ToolSwap::With::FakeTool, "deaf|print:ready|flood:100000000000");
    Task task;
    task.setLaunchPath(toolPath());
    task.launch();
    QVERIFY(!task.availableData().isEmpty());
    QElapsedTimer timer;
    timer.start();
    task.terminate();
    QVERIFY(!task.isRunning());
    QVERIFY2(timer.elapsed() >= 2900 && timer.elapsed() < 10'000,
        qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(Processes::children(), QStringList());
}

void TestTask::readDataToEndOfFile_givesUpOnASilentTool()
{
    Task::setSilenceLimit(1s);
    QCOMPARE(outputOf("print:hello|forever"), QByteArray("hello"));
    Task::setSilenceLimit(300s);
    QCOMPARE(Processes::children(), QStringList());
}

void TestTask::readDataToEndOfFile_givesUpOnAFloodingTool()
{
    const QByteArray output = outputOf("flood:100000000000");
    QVERIFY(output.size() > 60'000'000 && output.size() < 80'000'000);
}

QTEST_GUILESS_MAIN(TestTask)
#include "tst_task.moc"
