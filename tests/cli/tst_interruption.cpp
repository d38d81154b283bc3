// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QDir>
#include <QElapsedTimer>

#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void send(int signal, qint64 process) { QCOMPARE(::kill(static_cast<pid_t>(process), signal), 0); }

std::array<int, 2> openPipe()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        qFatal("No pipe");
    return ends;
}

}

/// However the program is stopped, neither a tool nor an unfinished file outlives it.
class TestInterruption : public QObject {
    Q_OBJECT

    [[nodiscard]] std::unique_ptr<QProcess> convertSlowly(
        const QStringList &further = {}, const std::function<void()> &inChild = [] {}) const
    {
        auto process
            = m_command.start(u"convert --to WebM video.mp4 -o out.webm"_s, further, inChild);
        if (!QTest::qWaitFor([this] { return !tools().isEmpty() && files().size() == 2; }, 20'000))
            qFatal("The tool has not started");
        return process;
    }
    [[nodiscard]] QList<qint64> tools(const QString &argument = u"out.webm"_s) const
    {
        return Processes::withArgument(m_command.path(argument));
    }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_command.path()).entryList(QDir::Files);
    }

    const QStringList m_untouched{ u"video.mp4"_s };
    Command m_command;

private Q_SLOTS:
    void initTestCase() { Media::video(m_command.path(u"video.mp4"_s), 60, u"640x480"_s); }

    void cleanup()
    {
        QVERIFY(tools().isEmpty());
        QCOMPARE(files(), m_untouched);
    }

    void signal_cancelsAConversion_data()
    {
        addRows<int, bool, Utf8>({ "signal", "toAll", "end" },
            {
                { "SIGINT", SIGINT, false, "130: video.mp4: Cancelled.\n" },
                { "SIGTERM", SIGTERM, false, "143: video.mp4: Cancelled.\n" },
                { "SIGHUP", SIGHUP, false, "129: video.mp4: Cancelled.\n" },
                { "SIGQUIT", SIGQUIT, false, "131: video.mp4: Cancelled.\n" },
                { "SIGINT by the terminal", SIGINT, true, "130: video.mp4: Cancelled.\n" },
            });
    }
    void signal_cancelsAConversion()
    {
        QFETCH(const int, signal);
        QFETCH(const bool, toAll);
        const auto process = convertSlowly();
        QElapsedTimer clock;
        clock.start();
        for (const qint64 tool : toAll ? tools() : QList<qint64>())
            send(signal, tool);
        send(signal, process->processId());
        QTEST(Command::wait(*process).end(), "end");
        QVERIFY2(clock.elapsed() < 5000, "at once");
    }

    void signal_cancelsAProbe()
    {
        const ToolSwap swap(u"ffprobe"_s, ToolSwap::With::FakeTool, "forever");
        const auto process = m_command.start(u"probe video.mp4"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!tools(u"video.mp4"_s).isEmpty(), 10'000);
        send(SIGINT, process->processId());
        QCOMPARE(Command::wait(*process).exitCode, 130);
        QVERIFY(tools(u"video.mp4"_s).isEmpty());
    }

    void signal_endsTheWholeList()
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|forever");
        const auto process
            = m_command.start(u"convert --to MKV video.mp4 second.mp4 -d . --json"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!tools(u"video.mkv"_s).isEmpty(), 10'000);
        send(SIGTERM, process->processId());
        const Finished stopped = Command::wait(*process);
        QCOMPARE(stopped.exitCode, 143);
        QVERIFY2(stopped.out.contains(u"\"cancelled\""_s), qPrintable(stopped.out));
        QVERIFY2(!stopped.out.contains(u"second.mp4"_s), qPrintable(stopped.out));
    }

    void readerThatGoes_cancels()
    {
        const auto output = openPipe();
        const auto process
            = convertSlowly({ u"--json"_s }, [&output] { ::dup2(output[1], STDOUT_FILENO); });
        ::close(output[0]);
        ::close(output[1]);
        QCOMPARE(Command::wait(*process).exitCode, 128 + SIGPIPE);
    }

    void kill_leavesNoTool()
    {
        const auto process = convertSlowly();
        process->kill();
        process->waitForFinished();
        QTRY_VERIFY_WITH_TIMEOUT(tools().isEmpty(), 1000);
        QVERIFY(QFile::remove(m_command.path(u"out.webm"_s)));
    }
};

QTEST_GUILESS_MAIN(TestInterruption)
#include "tst_interruption.moc"
