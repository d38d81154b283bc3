// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QTest>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// A video of 100 s, converted in about 2 s.
constexpr char slowTool[] = "print:  Duration: 00:01:40.00, start: 0\\n|output|reports:100:20000";

/// Conversions that go well, and what is told of them.
class TestConvert : public QObject {
    Q_OBJECT

    Command m_command;

private Q_SLOTS:
    void initTestCase() { Media::video(m_command.path(u"video.mov"_s), 2, u"320x240"_s); }

    void events_tellTheProgress()
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, slowTool);
        const Finished finished
            = m_command.run(u"convert --to AVI --json -d . gone.mov video.mov"_s);
        QCOMPARE(finished.end(), u"3: gone.mov: There is no such file.\n"_s);
        QStringList names;
        qint64 last = -1;
        for (const QString &line : finished.out.split(u'\n', Qt::SkipEmptyParts)) {
            const QJsonObject event = QJsonDocument::fromJson(line.toUtf8()).object();
            const QString name = event[u"event"_s].toString();
            if (!names.endsWith(name))
                names << name;
            if (name != "progress"_L1)
                continue;
            QVERIFY(event[u"seconds"_s].toInteger() > last);
            last = event[u"seconds"_s].toInteger();
            QCOMPARE(event[u"percent"_s].toInteger(), last);
            QCOMPARE(event[u"input"_s].toString(), m_command.path(u"video.mov"_s));
        }
        QCOMPARE(names.join(u' '), u"failed started progress converted summary"_s);
        QVERIFY(last > 0);
        QVERIFY2(finished.out.contains(u"\"code\":3,"_s), qPrintable(finished.out));
        QVERIFY2(finished.out.contains(u"\"converted\":1,"_s), qPrintable(finished.out));
    }

    void terminal_showsABar()
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, slowTool);
        qputenv("TERM", "xterm");
        const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(::grantpt(master) == 0 && ::unlockpt(master) == 0);
        const auto process = m_command.start(u"convert --to FLV video.mov -o bar.flv"_s, {},
            [master] { ::dup2(::open(::ptsname(master), O_RDWR | O_NOCTTY), STDOUT_FILENO); });
        QCOMPARE(Command::wait(*process).exitCode, 0);
        QByteArray screen(65536, '\0');
        screen.resize(std::max<ssize_t>(0, ::read(master, screen.data(), 65536)));
        ::close(master);
        QVERIFY2(screen.count('\r') > 5, screen.constData());
        for (const char *part : { "#-", "s left", "\x1b[Kvideo.mov: converted to" })
            QVERIFY2(screen.contains(part), screen.constData());
    }

    void verbose_showsTheToolsOutput()
    {
        const QString convert = u"convert --to MP4 video.mov -o no.mp4 "_s;
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
            R"(print:early words\n\xff\nlast words\n|exit:1)");
        QCOMPARE(m_command.run(convert).err, u"video.mov: The tool failed: last words\n"_s);
        const Finished verbose = m_command.run(convert + u"--verbose"_s);
        QCOMPARE(verbose.err.count(u"early words\n"_s), 1);
        QVERIFY2(verbose.err.contains(u"last delta: "_s), qPrintable(verbose.err));
        QCOMPARE(verbose.out, QString());
    }

    void standardInput_isLeftAlone()
    {
        // A waiting 'q' would end the tool early, and a loop's list of videos would be eaten.
        QProcess shell;
        shell.setWorkingDirectory(m_command.path());
        shell.start(u"sh"_s,
            { u"-c"_s, u"\"$0\" convert --to MKV video.mov -o q.mkv && cat"_s,
                Command::program() });
        shell.write("q\nq\n");
        shell.closeWriteChannel();
        const Finished finished = Command::wait(shell);
        QCOMPARE(finished.err, QString());
        QVERIFY2(finished.out.endsWith(u"\nq\nq\n"_s), qPrintable(finished.out));
    }

    void noUsageEvent_isSent()
    {
        QTcpServer collector;
        QVERIFY(collector.listen(QHostAddress::LocalHost));
        const QByteArray port = QByteArray::number(collector.serverPort());
        qputenv("VIDEO_CONVERTER_COLLECTOR_URL", "http://127.0.0.1:" + port + '/');
        const Finished probed = m_command.run(u"probe video.mov"_s);
        qunsetenv("VIDEO_CONVERTER_COLLECTOR_URL");
        QCOMPARE(probed.exitCode, 0);
        QVERIFY(!collector.waitForNewConnection(200));
    }
};

QTEST_GUILESS_MAIN(TestConvert)
#include "tst_convert.moc"
