// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"

#include <QFile>
#include <QJsonObject>
#include <QTcpServer>
#include <QTest>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Conversions that go well, and what is told of them.
class TestConvert : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void film_isConverted();
    void manyFilms_goOnAfterAFailure();
    void events_tellTheProgress();
    void lines_tellTheProgress();
    void terminal_showsABar();
    void verbose_showsTheToolsOutput();
    void standardInput_isLeftAlone();
    void noUsageEvent_isSent();

private:
    Command m_command;
};

namespace {

// A film of 100 s, converted in about 2 s.
const QByteArray slowTool = "print:  Duration: 00:01:40.00, start: 0\\n|output|reports:100:20000";

struct Terminal {
    int master = ::posix_openpt(O_RDWR | O_NOCTTY);

    Terminal()
    {
        ::grantpt(master);
        ::unlockpt(master);
    }
    ~Terminal() { ::close(master); }
    Q_DISABLE_COPY_MOVE(Terminal)
};

}

void TestConvert::initTestCase()
{
    Media::film(m_command.path(u"film.mov"_s), 2, u"320x240"_s);
    m_command.write(u"text.mp4"_s, "text");
    QVERIFY(QDir(m_command.path(QString())).mkdir(u"out"_s));
}

void TestConvert::film_isConverted()
{
    const Finished converted = m_command.run(
        { u"convert"_s, u"--to"_s, u"MP4 Low Quality"_s, u"film.mov"_s, u"-o"_s, u"film.mp4"_s });
    QCOMPARE(converted.err, QString());
    QCOMPARE(converted.exitCode, 0);
    QVERIFY2(converted.out.contains(u"film.mov: converted to "_s), qPrintable(converted.out));
    QCOMPARE(
        Media::streamEntry(m_command.path(u"film.mp4"_s), u"v:0"_s, u"codec_name"_s), u"h264"_s);
}

void TestConvert::manyFilms_goOnAfterAFailure()
{
    const Finished converted = m_command.run({ u"convert"_s, u"--to"_s, u"MKV"_s, u"-d"_s, u"out"_s,
        u"gone.mov"_s, u"text.mp4"_s, u"film.mov"_s, u"film.mov"_s });
    QCOMPARE(converted.exitCode, 3);
    QCOMPARE(converted.err.count(u'\n'), 2);
    QVERIFY2(converted.out.endsWith(u"\n2 of 4 films converted\n"_s), qPrintable(converted.out));
    QVERIFY(QFile::exists(m_command.path(u"out/film.mkv"_s)));
    QVERIFY(QFile::exists(m_command.path(u"out/film 2.mkv"_s)));
}

void TestConvert::events_tellTheProgress()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, slowTool);
    const Finished converted = m_command.run({ u"convert"_s, u"--to"_s, u"AVI"_s, u"--json"_s,
        u"-d"_s, u"out"_s, u"film.mov"_s, u"gone.mov"_s });
    const QList<QJsonObject> events = converted.events();
    QStringList names;
    qint64 last = -1;
    for (const QJsonObject &event : events) {
        const QString name = event[u"event"_s].toString();
        if (!names.endsWith(name))
            names << name;
        if (name != "progress"_L1)
            continue;
        QVERIFY(event[u"seconds"_s].toInteger() > last);
        last = event[u"seconds"_s].toInteger();
        QCOMPARE(event[u"percent"_s].toInteger(), last);
        QCOMPARE(event[u"input"_s].toString(), m_command.path(u"film.mov"_s));
    }
    QCOMPARE(names,
        (QStringList{ u"started"_s, u"progress"_s, u"converted"_s, u"failed"_s, u"summary"_s }));
    QVERIFY(last > 0);
    QCOMPARE(events.at(events.size() - 2)[u"code"_s].toInt(), 3);
    QCOMPARE(events.constLast()[u"converted"_s].toInt(), 1);
}

void TestConvert::lines_tellTheProgress()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, slowTool);
    const Finished converted = m_command.run(
        { u"convert"_s, u"--to"_s, u"FLV"_s, u"film.mov"_s, u"-o"_s, u"film.flv"_s });
    const QStringList lines = converted.out.split(u'\n', Qt::SkipEmptyParts);
    QVERIFY2(lines.size() > 2 && lines.size() < 12, qPrintable(converted.out));
    static const QRegularExpression line(uR"(\Afilm\.mov: \d+%(  [\d.]+x  \d+s left)?\z)"_s);
    for (const QString &each : lines.first(lines.size() - 1))
        QVERIFY2(line.match(each).hasMatch(), qPrintable(each));
}

void TestConvert::terminal_showsABar()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, slowTool);
    const Terminal terminal;
    QProcess process;
    process.setWorkingDirectory(m_command.path(QString()));
    process.setChildProcessModifier([&terminal] {
        const int screen = ::open(::ptsname(terminal.master), O_RDWR | O_NOCTTY);
        ::dup2(screen, STDOUT_FILENO);
    });
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TERM"_s, u"xterm"_s);
    process.setProcessEnvironment(environment);
    process.start(Command::program(),
        { u"convert"_s, u"--to"_s, u"FLV"_s, u"film.mov"_s, u"-o"_s, u"bar.flv"_s });
    QCOMPARE(Command::wait(process).exitCode, 0);
    QByteArray screen(64 * 1024, '\0');
    screen.resize(std::max<ssize_t>(0, ::read(terminal.master, screen.data(), 64 * 1024)));
    const QList<QByteArray> frames = screen.split('\r');
    QVERIFY2(frames.size() > 5, screen.constData());
    const bool hasForecast = std::any_of(frames.begin(), frames.end(),
        [](const QByteArray &frame) { return frame.contains("#-") && frame.contains("s left"); });
    QVERIFY2(hasForecast, screen.constData());
    QVERIFY2(screen.contains("\x1b[Kfilm.mov: converted to"), screen.constData());
}

void TestConvert::verbose_showsTheToolsOutput()
{
    const QStringList convert{ u"convert"_s, u"--to"_s, u"MP4"_s, u"film.mov"_s, u"-o"_s,
        u"no.mp4"_s };
    const ToolSwap swap(
        u"ffmpeg"_s, ToolSwap::With::FakeTool, "print:early words\\n\\xff\\nlast words\\n|exit:1");
    QCOMPARE(m_command.run(convert).err, u"film.mov: The tool failed: last words\n"_s);
    const Finished verbose = m_command.run(convert + QStringList{ u"--verbose"_s });
    QVERIFY2(verbose.err.contains(u"early words\n"_s), qPrintable(verbose.err));
    QVERIFY2(verbose.err.contains(u"last delta: "_s), qPrintable(verbose.err));
    QCOMPARE(verbose.out, QString());
    ToolSwap::setScript("print:plain words\\nlast words\\n|exit:1");
    const Finished plain = m_command.run(convert + QStringList{ u"--verbose"_s });
    QCOMPARE(plain.err.count(u"plain words"_s), 1);
}

void TestConvert::standardInput_isLeftAlone()
{
    // A waiting 'q' would end the tool early, and a loop's list of films would be eaten.
    QProcess shell;
    shell.setWorkingDirectory(m_command.path(QString()));
    shell.start(u"sh"_s,
        { u"-c"_s, u"\"$0\" convert --to MKV film.mov -o q.mkv && cat"_s, Command::program() });
    shell.write("q\nq\n");
    shell.closeWriteChannel();
    const Finished finished = Command::wait(shell);
    QCOMPARE(finished.err, QString());
    QVERIFY2(finished.out.endsWith(u"\nq\nq\n"_s), qPrintable(finished.out));
}

void TestConvert::noUsageEvent_isSent()
{
    QTcpServer collector;
    QVERIFY(collector.listen(QHostAddress::LocalHost));
    const QByteArray url = "http://127.0.0.1:" + QByteArray::number(collector.serverPort()) + '/';
    qputenv("VIDEO_CONVERTER_COLLECTOR_URL", url);
    const Finished probed = m_command.run({ u"probe"_s, u"film.mov"_s });
    qunsetenv("VIDEO_CONVERTER_COLLECTOR_URL");
    QCOMPARE(probed.exitCode, 0);
    QVERIFY(!collector.waitForNewConnection(200));
}

QTEST_GUILESS_MAIN(TestConvert)
#include "tst_convert.moc"
