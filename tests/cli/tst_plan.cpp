// SPDX-License-Identifier: MIT
#include "planning/VideoConstraints.h"
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the program tells without converting: outputs, descriptions, plans.
class TestPlan : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void formats_listsAllEntries();
    void probe_describesAFilm();
    void plan_isTheToolsCommandLine();
    void plan_survivesAShell();
    void savedInformation_isPlanned_data();
    void savedInformation_isPlanned();
    void unusableInformation_isRefused_data();
    void unusableInformation_isRefused();
    void fullDisk_isReported();

private:
    Command m_command;
};

namespace {

QJsonObject objectOf(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

QStringList wordsOf(const QJsonValue &list) { return list.toVariant().toStringList(); }

}

void TestPlan::initTestCase() { Media::film(m_command.path(u"a'b\"c\n.mp4"_s), 3, u"320x240"_s); }

void TestPlan::formats_listsAllEntries()
{
    const Finished text = m_command.run({ u"formats"_s });
    const Finished json = m_command.run({ u"formats"_s, u"--json"_s });
    QStringList names;
    for (const QJsonValue &entry : QJsonDocument::fromJson(json.out.toUtf8()).array())
        names << entry[u"name"_s].toString();
    QCOMPARE(names, entryNames());
    for (const QString &name : names)
        QVERIFY2(text.out.contains(u"\n  "_s + name + u"  "_s), qPrintable(name));
}

void TestPlan::probe_describesAFilm()
{
    const QString film = u"a'b\"c\n.mp4"_s;
    const QJsonObject object = objectOf(m_command.run({ u"probe"_s, film, u"--json"_s }).out);
    QCOMPARE(object.keys(), (QStringList{ u"cover"_s, u"duration"_s, u"info"_s, u"seconds"_s }));
    QCOMPARE(object[u"duration"_s].toString(), u"3s"_s);
    QCOMPARE(object[u"seconds"_s].toInt(), 3);
    QCOMPARE(object[u"cover"_s][u"width"_s].toInt(), 320);
    QCOMPARE(object[u"info"_s][u"streams"_s][0][u"codec_name"_s].toString(), u"h264"_s);

    Media::ffmpeg({ u"-i"_s, m_command.path(film), u"-vn"_s, m_command.path(u"sound.wav"_s) });
    const QJsonObject sound
        = objectOf(m_command.run({ u"probe"_s, u"sound.wav"_s, u"--json"_s }).out);
    QVERIFY(sound[u"cover"_s].isNull());
    const Finished text = m_command.run({ u"probe"_s, film });
    QCOMPARE(text.exitCode, 0);
    QVERIFY2(text.out.contains(u"0, video, h264, 320 x 240\n"_s), qPrintable(text.out));
}

void TestPlan::plan_isTheToolsCommandLine()
{
    const QString film = u"a'b\"c\n.mp4"_s;
    const Finished planned
        = m_command.run({ u"plan"_s, u"--to"_s, u"WebM"_s, film, u"o.webm"_s, u"--json"_s });
    const QJsonObject object = objectOf(planned.out);
    QCOMPARE(object.keys(), QStringList{ u"WebM"_s });
    QCOMPARE(wordsOf(object[u"WebM"_s]),
        (QStringList{ u"-hide_banner"_s, u"-loglevel"_s, u"verbose"_s, u"-y"_s, u"-i"_s,
            m_command.path(film), u"-map"_s, u"0:0"_s, u"-vcodec"_s, u"libvpx"_s, u"-map"_s,
            u"0:1"_s, u"-acodec"_s, u"libvorbis"_s, u"-ar"_s, u"44100"_s, u"-ac"_s, u"1"_s, u"-f"_s,
            u"webm"_s, m_command.path(u"o.webm"_s) }));
    QVERIFY(!QFile::exists(m_command.path(u"o.webm"_s)));
    const Finished refused
        = m_command.run({ u"plan"_s, u"--to"_s, u"WebM"_s, u"gone"_s, u"o.webm"_s });
    QCOMPARE(refused.exitCode, 3);
}

void TestPlan::plan_survivesAShell()
{
    const QStringList words{ u"plan"_s, u"--to"_s, u"GIF"_s, u"a'b\"c\n.mp4"_s, u"$HOME *.gif"_s };
    QString line = m_command.run(words).out;
    line.chop(1);
    const QJsonObject object = objectOf(m_command.run(words + QStringList{ u"--json"_s }).out);
    QProcess shell;
    shell.start(u"sh"_s, { u"-c"_s, u"set -- "_s + line + uR"(; printf '%s|' "$@")"_s });
    QVERIFY(shell.waitForFinished());
    QStringList seen = QString::fromUtf8(shell.readAllStandardOutput()).split(u'|');
    QVERIFY(seen.takeFirst().endsWith(u"/Contents/ffmpeg/ffmpeg"_s));
    QCOMPARE(seen.takeLast(), QString());
    QCOMPARE(seen, wordsOf(object[u"GIF"_s]));
}

void TestPlan::savedInformation_isPlanned_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("hd720");
    const QString tail = u"-strict experimental -f mp4"_s;
    const QByteArray film
        = R"({"streams":[{"codec_type":"video","codec_name":"h264","width":1920,"height":1080},)"
          R"({"codec_type":"audio","codec_name":"aac"}],"format":{"duration":"5.0"}})";
    const QString scaled
        = u"-vf scale=1280:-2 -map 0:0 -vcodec libx264 -map 0:1 -acodec copy "_s + tail;
    QTest::newRow("as the tool printed it") << film << scaled;
    QTest::newRow("as probe printed it") << R"({"cover":null,"info":)" + film + '}' << scaled;
    QTest::newRow("nothing in it") << QByteArray("{}") << tail;
    QTest::newRow("a list") << QByteArray("[1, 2]") << tail;
    QTest::newRow("info of another type") << QByteArray(R"({"info":"x","streams":7})") << tail;
    QTest::newRow("odd types") << QByteArray(
        R"({"streams":[null,{"codec_type":7},{"codec_type":"video","width":"9999"}]})")
                               << u"-map 0:2 -vcodec libx264 "_s + tail;
    QTest::newRow("huge numbers") << QByteArray(
        R"({"streams":[{"codec_type":"video","width":1e400,"height":-1e308},)"
        R"({"codec_type":"audio","channels":1e308,"sample_rate":"1 2"}]})")
                                  << QString();
    QTest::newRow("deep") << R"({"streams":)" + QByteArray("[").repeated(500)
            + QByteArray("]").repeated(500)
            + '}' << tail;
}

void TestPlan::savedInformation_isPlanned()
{
    QFETCH(QByteArray, info);
    QFETCH(QString, hd720);
    m_command.write(u"info.json"_s, info);
    const QStringList plan{ u"plan"_s, u"--to"_s, u"all"_s, u"--json"_s, u"--info"_s };
    const Finished fromFile = m_command.run(plan + QStringList{ u"info.json"_s });
    const Finished fromInput = m_command.run(plan + QStringList{ u"-"_s }, info);
    if (fromFile.exitCode == 3 && hd720.isEmpty())
        return; // no number of that size is JSON to the parser
    QCOMPARE(fromFile.err, QString());
    QCOMPARE(fromFile.exitCode, 0);
    QCOMPARE(fromInput.out, fromFile.out);
    const QJsonObject object = objectOf(fromFile.out);
    QCOMPARE(object.size(), 25);
    QCOMPARE(wordsOf(object[u"audio"_s]), (QStringList{ u"-f"_s, u"mp3"_s }));
    if (!hd720.isEmpty())
        QCOMPARE(wordsOf(object[u"MP4 HD 720"_s]).join(u' '), hd720);
}

void TestPlan::unusableInformation_isRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("missing") << u"gone.json"_s;
    QTest::newRow("folder") << u"."_s;
    QTest::newRow("not JSON") << u"text"_s;
    QTest::newRow("nothing on standard input") << u"-"_s;
}

void TestPlan::unusableInformation_isRefused()
{
    QFETCH(QString, file);
    m_command.write(u"text"_s, "Duration: 5");
    const Finished planned = m_command.run({ u"plan"_s, u"--to"_s, u"MP4"_s, u"--info"_s, file });
    QVERIFY2(planned.err.startsWith(file + u": The file "_s), qPrintable(planned.err));
    QCOMPARE(planned.exitCode, 3);
    QCOMPARE(planned.out, QString());
}

void TestPlan::fullDisk_isReported()
{
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(Command::program(), { u"formats"_s });
    const Finished formats = Command::wait(process);
    QCOMPARE(formats.err, u"The output can't be written.\n"_s);
    QCOMPARE(formats.exitCode, 1);
}

QTEST_GUILESS_MAIN(TestPlan)
#include "tst_plan.moc"
