// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/ToolSwap.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList slowConversion{ u"convert"_s, u"--to"_s, u"WebM"_s, u"film.mp4"_s, u"-o"_s,
    u"out.webm"_s };

struct Pipe {
    std::array<int, 2> ends{};

    Pipe()
    {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            qFatal("No pipe");
    }
    ~Pipe() { close(); }
    Q_DISABLE_COPY_MOVE(Pipe)

    void close()
    {
        for (int &end : ends) {
            if (end >= 0)
                ::close(end);
            end = -1;
        }
    }
};

}

/// However the program is stopped, neither a tool nor an unfinished file outlives it.
class TestInterruption : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void signal_cancelsAConversion_data();
    void signal_cancelsAConversion();
    void signalToAllAtOnce_isNoFailure();
    void signal_cancelsAProbe();
    void signal_endsTheWholeList();
    void readerThatGoes_cancels();
    void readerThatDoesNotRead_isNotWaitedFor();
    void kill_leavesNoTool();

private:
    std::unique_ptr<QProcess> convertSlowly();
    [[nodiscard]] bool toolRuns() const
    {
        return !Processes::withArgument(m_command.path(u"out.webm"_s)).isEmpty();
    }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_command.path(QString())).entryList(QDir::Files);
    }

    Command m_command;
};

void TestInterruption::initTestCase()
{
    Media::film(m_command.path(u"film.mp4"_s), 60, u"640x480"_s);
}

std::unique_ptr<QProcess> TestInterruption::convertSlowly()
{
    auto process = m_command.start(slowConversion);
    const bool started = QTest::qWaitFor(
        [this] { return toolRuns() && QFile::exists(m_command.path(u"out.webm"_s)); }, 20'000);
    if (!started)
        qFatal("The tool has not started");
    return process;
}

void TestInterruption::signal_cancelsAConversion_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("SIGINT") << SIGINT << 130;
    QTest::newRow("SIGTERM") << SIGTERM << 143;
    QTest::newRow("SIGHUP") << SIGHUP << 129;
}

void TestInterruption::signal_cancelsAConversion()
{
    QFETCH(int, number);
    const auto process = convertSlowly();
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(::kill(static_cast<pid_t>(process->processId()), number), 0);
    const Finished stopped = Command::wait(*process);
    QVERIFY2(clock.elapsed() < 5000, "at once");
    QCOMPARE(stopped.err, u"film.mp4: Cancelled.\n"_s);
    QTEST(stopped.exitCode, "exitCode");
    QVERIFY(!toolRuns());
    QCOMPARE(files(), QStringList{ u"film.mp4"_s });
}

void TestInterruption::signalToAllAtOnce_isNoFailure()
{
    // As a terminal does with Ctrl-C.
    const auto process = convertSlowly();
    for (const qint64 tool : Processes::withArgument(m_command.path(u"out.webm"_s)))
        ::kill(static_cast<pid_t>(tool), SIGINT);
    ::kill(static_cast<pid_t>(process->processId()), SIGINT);
    const Finished stopped = Command::wait(*process);
    QCOMPARE(stopped.err, u"film.mp4: Cancelled.\n"_s);
    QCOMPARE(stopped.exitCode, 130);
    QCOMPARE(files(), QStringList{ u"film.mp4"_s });
}

void TestInterruption::signal_cancelsAProbe()
{
    const QString mark = m_command.path(u"film.mp4"_s);
    const ToolSwap swap(u"ffprobe"_s, ToolSwap::With::FakeTool, "forever");
    const auto process = m_command.start({ u"probe"_s, u"film.mp4"_s });
    QTRY_VERIFY_WITH_TIMEOUT(!Processes::withArgument(mark).isEmpty(), 10'000);
    QCOMPARE(::kill(static_cast<pid_t>(process->processId()), SIGINT), 0);
    QCOMPARE(Command::wait(*process).exitCode, 130);
    QVERIFY(Processes::withArgument(mark).isEmpty());
}

void TestInterruption::signal_endsTheWholeList()
{
    m_command.write(u"second.mp4"_s, m_command.contents(u"film.mp4"_s));
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|forever");
    const auto process = m_command.start({ u"convert"_s, u"--to"_s, u"MKV"_s, u"film.mp4"_s,
        u"second.mp4"_s, u"-d"_s, u"."_s, u"--json"_s });
    QTRY_VERIFY_WITH_TIMEOUT(
        !Processes::withArgument(m_command.path(u"film.mkv"_s)).isEmpty(), 10'000);
    QCOMPARE(::kill(static_cast<pid_t>(process->processId()), SIGTERM), 0);
    const Finished stopped = Command::wait(*process);
    QCOMPARE(stopped.exitCode, 143);
    QVERIFY2(stopped.out.contains(u"\"cancelled\""_s), qPrintable(stopped.out));
    QVERIFY2(!stopped.out.contains(u"second.mp4"_s), qPrintable(stopped.out));
    QVERIFY(QFile::remove(m_command.path(u"second.mp4"_s)));
    QCOMPARE(files(), QStringList{ u"film.mp4"_s });
}

void TestInterruption::readerThatGoes_cancels()
{
    Pipe output;
    QProcess process;
    process.setWorkingDirectory(m_command.path(QString()));
    process.setChildProcessModifier([&output] { ::dup2(output.ends[1], STDOUT_FILENO); });
    process.start(Command::program(), slowConversion + QStringList{ u"--json"_s });
    QTRY_VERIFY_WITH_TIMEOUT(toolRuns(), 20'000);
    output.close();
    QCOMPARE(Command::wait(process).exitCode, 128 + SIGPIPE);
    QVERIFY(!toolRuns());
    QCOMPARE(files(), QStringList{ u"film.mp4"_s });
}

void TestInterruption::readerThatDoesNotRead_isNotWaitedFor()
{
    // More diagnostics than a pipe holds, and nobody who reads them.
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "flood:1000000|exit:1");
    const Pipe errors;
    QProcess process;
    process.setWorkingDirectory(m_command.path(QString()));
    process.setChildProcessModifier([&errors] {
        ::signal(SIGINT, SIG_DFL);
        ::dup2(errors.ends[1], STDERR_FILENO);
    });
    process.start(Command::program(), { u"probe"_s, u"film.mp4"_s, u"--verbose"_s });
    int waiting = 0;
    QTRY_VERIFY_WITH_TIMEOUT(
        ::ioctl(errors.ends[0], FIONREAD, &waiting) == 0 && waiting > 60'000, 20'000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(5000));
    QCOMPARE(process.exitCode(), 130);
}

void TestInterruption::kill_leavesNoTool()
{
    const auto process = convertSlowly();
    process->kill();
    process->waitForFinished();
    QTRY_VERIFY_WITH_TIMEOUT(!toolRuns(), 1000);
    QFile::remove(m_command.path(u"out.webm"_s));
}

QTEST_GUILESS_MAIN(TestInterruption)
#include "tst_interruption.moc"
