// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// Every bad film ends with its own message and code, leaves nothing behind and is left as it was.
class TestBadInput : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void film_isRefused_data();
    void film_isRefused();
    void unreadableFilm_isRefused();
    void strangeProbe_isRefused_data();
    void strangeProbe_isRefused();
    void conversion_fails_data();
    void conversion_fails();
    void cutFilm_isReportedAndKept();
    void strangeTool_fails_data();
    void strangeTool_fails();
    void missingTool_isReported_data();
    void missingTool_isReported();

private:
    Finished convert(const QString &film, const QString &entry = u"MP4"_s) const
    {
        return m_command.run(
            { u"convert"_s, u"--to"_s, entry, u"-o"_s, u"out/result"_s, u"--"_s, film });
    }

    Command m_command;
};

void TestBadInput::initTestCase()
{
    const QString film = m_command.path(u"film.mp4"_s);
    Media::film(film, 2);
    Media::film(m_command.path(u"short.mp4"_s), 1, u"160x120"_s,
        { u"-t"_s, u"0.6"_s, u"-c:v"_s, u"mpeg4"_s, u"-c:a"_s, u"aac"_s });
    Media::film(m_command.path(u"film.mkv"_s), 4, u"160x120"_s,
        { u"-c:v"_s, u"mpeg4"_s, u"-c:a"_s, u"aac"_s });
    const QByteArray bytes = m_command.contents(u"film.mp4"_s);
    m_command.write(u"cut.mp4"_s, bytes.first(bytes.size() / 2));
    const QByteArray mkv = m_command.contents(u"film.mkv"_s);
    m_command.write(u"cut.mkv"_s, mkv.first(mkv.size() / 2));
    m_command.write(u"empty.mp4"_s, {});
    m_command.write(u"text.mp4"_s, QByteArray("Once upon a time.\n").repeated(500));
    QByteArray noise;
    for (quint32 n = 1; noise.size() < 100'000; n = n * 1664525U + 1013904223U)
        noise += static_cast<char>(n >> 24U);
    m_command.write(u"noise.mp4"_s, noise);
    QFile::link(m_command.path(u"nowhere"_s), m_command.path(u"link.mp4"_s));
    QVERIFY(::mkfifo(QFile::encodeName(m_command.path(u"fifo.mp4"_s)).constData(), 0600) == 0);
    Media::ffmpeg({ u"-i"_s, film, u"-vn"_s, m_command.path(u"sound.wav"_s) });
    Media::ffmpeg({ u"-i"_s, film, u"-an"_s, m_command.path(u"silent.mp4"_s) });
    QVERIFY(QDir(m_command.path(QString())).mkdir(u"out"_s));
}

void TestBadInput::film_isRefused_data()
{
    QTest::addColumn<QString>("film");
    QTest::addColumn<QString>("message");
    const QString noFilm = u"The file is no film, or it is damaged or incomplete."_s;
    QTest::newRow("missing") << u"missing.mp4"_s << u"There is no such file."_s;
    QTest::newRow("below a file") << u"film.mp4/x"_s << u"There is no such file."_s;
    QTest::newRow("link to nothing") << u"link.mp4"_s << u"There is no such file."_s;
    QTest::newRow("empty name") << QString() << u"This is a folder, not a film."_s;
    QTest::newRow("folder") << u"out"_s << u"This is a folder, not a film."_s;
    QTest::newRow("FIFO") << u"fifo.mp4"_s << u"This is a pipe or a device, not a file."_s;
    QTest::newRow("device") << u"/dev/zero"_s << u"This is a pipe or a device, not a file."_s;
    QTest::newRow("empty file") << u"empty.mp4"_s << u"The file is empty."_s;
    QTest::newRow("text") << u"text.mp4"_s << noFilm;
    QTest::newRow("random bytes") << u"noise.mp4"_s << noFilm;
    QTest::newRow("cut in the middle") << u"cut.mp4"_s << noFilm;
    QTest::newRow("shorter than a second")
        << u"short.mp4"_s << u"The film is shorter than one second."_s;
}

void TestBadInput::film_isRefused()
{
    QFETCH(QString, film);
    QFETCH(QString, message);
    const QStringList before = m_command.listing();
    const Finished converted = convert(film);
    QCOMPARE(converted.err, film + u": "_s + message + u'\n');
    QCOMPARE(converted.exitCode, 3);
    const Finished probed = m_command.run({ u"probe"_s, film, u"--json"_s });
    QCOMPARE(probed.exitCode, 3);
    QCOMPARE(probed.err, converted.err);
    QCOMPARE(probed.out, QString());
    QCOMPARE(m_command.listing(), before);
}

void TestBadInput::unreadableFilm_isRefused()
{
    Command command;
    command.write(u"film.mp4"_s, "x");
    QFile::setPermissions(command.path(u"film.mp4"_s), {});
    if (!command.dropPrivileges())
        QSKIP("No other user can run the program here");
    const Finished probed = command.run({ u"probe"_s, u"film.mp4"_s });
    QCOMPARE(probed.err, u"film.mp4: The file may not be read: permission denied.\n"_s);
    QCOMPARE(probed.exitCode, 3);
}

void TestBadInput::strangeProbe_isRefused_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("message");
    QTest::newRow("still growing")
        << QByteArray(R"({"format":{"duration":"2.0","size":"17"}})")
        << u"The file is still being written, or could be read only in part."_s;
    QTest::newRow("no length") << QByteArray(R"({"format":{"duration":2,"size":"17"}})")
                               << u"The file does not tell how long it plays."_s;
    QTest::newRow("no size") << QByteArray(R"({"format":{"duration":"2.0"}})")
                             << u"The file's size can't be found out."_s;
    QTest::newRow("no JSON") << QByteArray("Segmentation fault")
                             << u"The file is no film, or it is damaged or incomplete."_s;
}

void TestBadInput::strangeProbe_isRefused()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, message);
    const ToolSwap swap(u"ffprobe"_s, ToolSwap::With::FakeTool, "out:" + answer);
    const Finished converted = convert(u"film.mp4"_s);
    QCOMPARE(converted.err, u"film.mp4: "_s + message + u'\n');
    QCOMPARE(converted.exitCode, 3);
}

void TestBadInput::conversion_fails_data()
{
    QTest::addColumn<QString>("film");
    QTest::addColumn<QString>("entry");
    QTest::newRow("no picture for GIF") << u"sound.wav"_s << u"GIF"_s;
    QTest::newRow("no sound for MP3") << u"silent.mp4"_s << u"audio"_s;
}

void TestBadInput::conversion_fails()
{
    QFETCH(QString, film);
    QFETCH(QString, entry);
    const QStringList before = m_command.listing();
    const Finished converted = convert(film, entry);
    QCOMPARE(converted.err, film + u": The film holds nothing that this output can take.\n"_s);
    QCOMPARE(converted.exitCode, 1);
    QCOMPARE(m_command.listing(), before);
    // The other half of such films converts.
    QCOMPARE(convert(film).exitCode, 0);
    QVERIFY(QFile::remove(m_command.path(u"out/result"_s)));
}

void TestBadInput::cutFilm_isReportedAndKept()
{
    const Finished converted = convert(u"cut.mkv"_s, u"MKV"_s);
    QVERIFY2(converted.err.startsWith(u"cut.mkv: The converting progress was finished at "_s),
        qPrintable(converted.err));
    QCOMPARE(converted.exitCode, 1);
    QVERIFY(QFile::remove(m_command.path(u"out/result"_s)));
}

void TestBadInput::strangeTool_fails_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("message");
    const QByteArray start = "output|print:  Duration: 00:01:40.00, start: 0\\n|";
    QTest::newRow("disk full") << start
            + "print:av_interleaved_write_frame(): No space left on device\\n|exit:1"
                               << u"There is no space left on the destination's disk."_s;
    QTest::newRow("killed") << start + "reports:1:0|signal:9"
                            << u"The tool was killed before it was done."_s;
    QTest::newRow("silent death") << QByteArray("output|exit:1")
                                  << u"The tool was killed before it was done."_s;
    QTest::newRow("not UTF-8") << start + "print:\\xff\\xfe bad \\xd0\\nlast words\\n|exit:1"
                               << u"The tool failed: last words"_s;
    QTest::newRow("flood") << start + "flood:50000000|print:last words\\n|exit:1"
                           << u"The tool failed: last words"_s;
}

void TestBadInput::strangeTool_fails()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, message);
    const QStringList before = m_command.listing();
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script);
    const Finished converted = convert(u"film.mp4"_s);
    QCOMPARE(converted.err, u"film.mp4: "_s + message + u'\n');
    QCOMPARE(converted.exitCode, 1);
    QCOMPARE(m_command.listing(), before);
}

void TestBadInput::missingTool_isReported_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<bool>("unexecutable");
    QTest::newRow("no ffmpeg") << u"ffmpeg"_s << false;
    QTest::newRow("no ffprobe") << u"ffprobe"_s << false;
    QTest::newRow("ffmpeg is no program") << u"ffmpeg"_s << true;
}

void TestBadInput::missingTool_isReported()
{
    QFETCH(QString, tool);
    QFETCH(bool, unexecutable);
    m_command.write(u"out/result"_s, "precious");
    const QStringList before = m_command.listing();
    const ToolSwap swap(
        tool, unexecutable ? ToolSwap::With::UnexecutableFile : ToolSwap::With::Nothing);
    const Finished converted = m_command.run({ u"convert"_s, u"--to"_s, u"MP4"_s, u"--overwrite"_s,
        u"film.mp4"_s, u"-o"_s, u"out/result"_s });
    QVERIFY2(converted.err.contains(u"/Contents/ffmpeg/"_s + tool), qPrintable(converted.err));
    QCOMPARE(converted.exitCode, 5);
    QCOMPARE(m_command.listing(), before);
    QCOMPARE(m_command.contents(u"out/result"_s), "precious");
    QVERIFY(QFile::remove(m_command.path(u"out/result"_s)));
}

QTEST_GUILESS_MAIN(TestBadInput)
#include "tst_badinput.moc"
