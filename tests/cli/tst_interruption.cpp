// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QDeadlineTimer>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void send(int signal, qint64 process) { QCOMPARE(::kill(static_cast<pid_t>(process), signal), 0); }

}

/// However the program is stopped, neither a tool nor an unfinished file outlives it.
class TestInterruption : public QObject {
    Q_OBJECT

    [[nodiscard]] std::unique_ptr<QProcess> convertSlowly(
        const QStringList &further = {}, const std::function<void()> &inChild = [] {}) const
    {
        auto process
            = m_command.start(u"convert --to WebM video.mp4 -o out.webm"_s, further, inChild);
        if (!QTest::qWaitFor([this] { return !tools().isEmpty() && countOfFiles() == 2; }, 20'000))
            qFatal("The tool has not started");
        return process;
    }
    [[nodiscard]] QList<qint64> tools() const
    {
        return Processes::withArgument(m_command.path(u"video.mp4"_s));
    }
    [[nodiscard]] qsizetype countOfFiles() const { return m_command.files().count(u'|') + 1; }

    Command m_command;

private Q_SLOTS:
    void initTestCase() { Media::video(m_command.path(u"video.mp4"_s), 60, u"640x480"_s); }

    void cleanup()
    {
        QVERIFY(tools().isEmpty());
        QCOMPARE(m_command.files(), u"video.mp4"_s);
    }

    void signal_cancelsAConversion_data()
    {
        addRows<int, bool>({ "signal", "toAll" },
            { { "SIGINT", SIGINT, false }, { "SIGTERM", SIGTERM, false },
                { "SIGHUP", SIGHUP, false }, { "SIGQUIT", SIGQUIT, false },
                { "SIGINT by the terminal", SIGINT, true } });
    }
    void signal_cancelsAConversion()
    {
        QFETCH(const int, signal);
        QFETCH(const bool, toAll);
        const auto process = convertSlowly();
        const QDeadlineTimer limit(5000);
        for (const qint64 tool : toAll ? tools() : QList<qint64>())
            send(signal, tool);
        send(signal, process->processId());
        QCOMPARE(Command::wait(*process).end(), u"%1: video.mp4: Cancelled.\n"_s.arg(128 + signal));
        QVERIFY2(!limit.hasExpired(), "at once");
    }

    void signal_cancelsAProbe()
    {
        const ToolSwap swap(u"ffprobe"_s, ToolSwap::With::FakeTool, "forever");
        for (const auto &line : { u"probe video.mp4"_s, u"convert --to MKV video.mp4 -o o"_s }) {
            const auto process = m_command.start(line);
            QTRY_VERIFY_WITH_TIMEOUT(!tools().isEmpty(), 10'000);
            send(SIGINT, process->processId());
            QCOMPARE(Command::wait(*process).end(), u"130: video.mp4: Cancelled.\n"_s);
        }
    }

    void signal_endsTheWholeList()
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|forever");
        m_command.shell(u"ln video.mp4 v2.mp4; ln video.mp4 last.mp4"_s);
        const auto process
            = m_command.start(u"convert --to MKV video.mp4 v2.mp4 last.mp4 -d . -j 2 --json"_s);
        QTRY_VERIFY_WITH_TIMEOUT(countOfFiles() == 5, 10'000);
        send(SIGTERM, process->processId());
        const Finished stopped = Command::wait(*process);
        m_command.shell(u"rm v2.mp4 last.mp4"_s);
        QCOMPARE(stopped.exitCode, 143);
        QCOMPARE(stopped.out.count(u"\"event\":\"started\""_s), 2);
        QCOMPARE(stopped.out.count(u"\"event\":\"cancelled\""_s), 2);
        QVERIFY2(!stopped.out.contains(u"\"failed\":1"_s), qPrintable(stopped.out));
    }

    void readerThatGoes_cancels()
    {
        std::array<int, 2> output{};
        QCOMPARE(::pipe2(output.data(), O_CLOEXEC), 0);
        const auto process
            = convertSlowly({ u"--json"_s }, [&output] { ::dup2(output[1], STDOUT_FILENO); });
        ::close(output[0]);
        ::close(output[1]);
        QCOMPARE(Command::wait(*process).exitCode, 128 + SIGPIPE);
    }

    void kill_leavesNoToolAndTheNextStartNoFile()
    {
        const auto process = convertSlowly();
        process->kill();
        process->waitForFinished();
        QTRY_VERIFY_WITH_TIMEOUT(tools().isEmpty(), 1000);
        QCOMPARE(countOfFiles(), 2);
        QCOMPARE(m_command.run(u"formats"_s).exitCode, 0);
    }
};

QTEST_GUILESS_MAIN(TestInterruption)
#include "tst_interruption.moc"
