// SPDX-License-Identifier: MIT
#include "planning/VideoConstraints.h"
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"

#include <QJsonArray>
#include <QTcpServer>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

/// What the program tells: outputs, descriptions, plans, and how a conversion goes.
class TestOutput : public QObject {
    Q_OBJECT

    static QStringList wordsOf(const QJsonValue &list) { return list.toVariant().toStringList(); }

    const QString m_video = u"a'b\"c\n.mp4"_s;
    Command m_command;

private Q_SLOTS:
    void initTestCase()
    {
        Media::video(m_command.path(u"video.mov"_s), 3, u"320x240"_s);
        QVERIFY(QFile::copy(m_command.path(u"video.mov"_s), m_command.path(m_video)));
    }

    void formats_listsAllEntries()
    {
        const QString text = m_command.run(u"formats"_s).out;
        const Finished json = m_command.run(u"formats --json"_s);
        QStringList names;
        for (const auto &entry : QJsonDocument::fromJson(json.out.toUtf8()).array())
            names << entry.toObject()[u"name"_s].toString();
        QCOMPARE(names, entryNames());
        QCOMPARE(text.count(u"\n  "_s), names.size());
        QVERIFY(text.contains(u"\n  iPad Air, Air 2, iPad mini 2, 3, 4  mp4   <= 2048 px\n"_s));
    }

    void probe_describesAVideo()
    {
        const QJsonObject object = m_command.run(u"probe --json"_s, { m_video }).object();
        QCOMPARE(object.keys().join(u' '), u"cover duration info input seconds"_s);
        QCOMPARE(object[u"seconds"_s].toInt(), 3);
        QCOMPARE(object[u"cover"_s][u"width"_s].toInt(), 320);
        QCOMPARE(object[u"info"_s][u"streams"_s][0][u"codec_name"_s].toString(), u"h264"_s);
        const QString text = m_command.run(u"probe"_s, { m_video }).out;
        QVERIFY2(text.contains(u"0, video, h264, 320 x 240\n"_s), qPrintable(text));

        Media::ffmpeg({ u"-i"_s, m_command.path(m_video), u"-vn"_s, m_command.path(u"a.wav"_s) });
        QVERIFY(m_command.run(u"probe a.wav --json"_s).object()[u"cover"_s].isNull());
    }

    void plan_isTheToolsCommandLine()
    {
        const Finished planned
            = m_command.run(u"plan --to WebM --json"_s, { m_video, u"o.webm"_s });
        QStringList words = wordsOf(planned.object()[u"WebM"_s]);
        QCOMPARE(words.value(5), m_command.path(m_video));
        words[5] = u"VIDEO"_s;
        QCOMPARE(words.join(u' '),
            u"-hide_banner -loglevel verbose -y -i VIDEO -map 0:0 -vcodec libvpx -map 0:1 "
            "-acodec libvorbis -ar 44100 -ac 1 -f webm "_s
                + m_command.path(u"o.webm"_s));
        QVERIFY(!QFile::exists(m_command.path(u"o.webm"_s)));
        QVERIFY(QFile::link(m_command.path(m_video), m_command.path(u"link.webm"_s)));
        QCOMPARE(m_command.run(u"plan --to WebM"_s, { m_video, u"link.webm"_s }).end(),
            u"4: %1: The result can't replace a video that is to be converted.\n"_s.arg(
                m_command.path(u"link.webm"_s)));
    }

    void plan_survivesAShell()
    {
        const QStringList files{ m_video, u"$HOME *.gif"_s };
        const QString line = m_command.run(u"plan --to GIF"_s, files).out.chopped(1);
        const QJsonObject object = m_command.run(u"plan --to GIF --json"_s, files).object();
        QStringList seen
            = m_command.shell(u"set -- "_s + line + uR"(; printf '%s|' "$@")"_s).split(u'|');
        QVERIFY(seen.takeFirst().endsWith(u"/Contents/ffmpeg/ffmpeg"_s));
        QCOMPARE(seen.takeLast(), QString());
        QCOMPARE(seen, wordsOf(object[u"GIF"_s]));
    }

    void savedInformation_isPlanned()
    {
        const QByteArray video = R"({"streams":[{"codec_type":"video","codec_name":"h264",)"
                                 R"("width":1920,"height":1080}]})";
        const QString scaled = u"-vf scale=1280:-2 -map 0:0 -vcodec libx264 "_s;
        const QByteArray deep = QByteArray(500, '[') + QByteArray(500, ']');
        for (const auto &[info, hd720] :
            { std::pair(video, scaled), std::pair(R"({"cover":null,"info":)" + video + '}', scaled),
                std::pair(QByteArray("[1, 2]"), QString()),
                std::pair(R"({"streams":)" + deep + '}', QString()) }) {
            m_command.write(u"info.json"_s, info);
            const Finished fromFile = m_command.run(u"plan --to all --json --info info.json"_s);
            QCOMPARE(fromFile.end(), u"0: "_s);
            QCOMPARE(m_command.run(u"plan --to all --json --info -"_s, {}, info).out, fromFile.out);
            const QJsonObject object = fromFile.object();
            QCOMPARE(object.size(), 25);
            QCOMPARE(wordsOf(object[u"MP4 HD 720"_s]).join(u' '),
                hd720 + u"-strict experimental -f mp4"_s);
        }
    }

    void movedBundle_isFound()
    {
        // Behind a link, inside another bundle, and without tools.
        const QString bundle = m_command.path(u"Contents/MacOS/Ä b%d.app"_s);
        const QString printed
            = m_command.shell(uR"(mkdir -p "%1/Contents/MacOS"; cp '%2' "%1/Contents/MacOS/program"
                ln -s "%1/Contents/MacOS/program" link; ./link probe video.mov 2>&1 || true)"_s.arg(
                bundle, Command::program()));
        QVERIFY2(printed.contains(bundle + u"/Contents/ffmpeg/ffprobe"_s), qPrintable(printed));
    }

    // Else the next files that are opened would take their places, and get what is printed.
    void closedStreams_areReplaced()
    {
        const ToolSwap swap(u"ffprobe"_s, ToolSwap::With::FakeTool, "forever");
        const auto process = m_command.start(u"probe"_s, { m_video }, [] {
            for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO })
                ::close(stream);
        });
        for (const char stream : { '0', '1', '2' }) {
            const QString link
                = u"/proc/%1/fd/%2"_s.arg(process->processId()).arg(QLatin1Char(stream));
            QTRY_COMPARE(QFile::symLinkTarget(link), u"/dev/null"_s);
        }
        process->terminate();
        QCOMPARE(Command::wait(*process).exitCode, 143);
    }

    void unusableInformation_isRefused()
    {
        m_command.write(u"text"_s, "Duration: 5");
        for (const QString &file : { u"gone.json"_s, u"."_s, u"text"_s, u"-"_s }) {
            const Finished planned = m_command.run(u"plan --to MP4 --info "_s + file);
            QVERIFY2(planned.end().startsWith(u"3: "_s + file + u": The file "_s),
                qPrintable(planned.end()));
            QCOMPARE(planned.out, QString());
        }
    }

    void terminal_showsABar()
    {
        // A video of 100 s, converted in about 5 s.
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
            R"(print:  Duration: 00:01:40.00, start: 0\n|copy|reports:100:50000)");
        const QString screen = m_command.shell(
            u"script -qec \"'%1' convert --to FLV video.mov -o bar.flv\" /dev/null"_s.arg(
                Command::program()));
        QVERIFY2(screen.count(u'\r') > 5, qPrintable(screen));
        for (const QString &part : { u"#-"_s, u"s left"_s, u"\u001b[Jvideo.mov: converted to"_s })
            QVERIFY2(screen.contains(part), qPrintable(screen));
    }

    void verbose_showsTheToolsOutput()
    {
        const QString convert = u"convert --to MP4 video.mov -o no.mp4 "_s;
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
            R"(print:early words\n\xff\nlast words\n|exit:1)");
        QCOMPARE(m_command.run(convert).err, u"video.mov: The tool failed: last words\n"_s);
        const Finished verbose = m_command.run(convert + u"--verbose"_s);
        QVERIFY2(verbose.err.contains(u"early words\n"_s), qPrintable(verbose.err));
        QVERIFY2(verbose.err.contains(u"last delta: "_s), qPrintable(verbose.err));
        QCOMPARE(verbose.out, QString());
        ToolSwap::setScript(R"(print:plain words\nlast words\n|exit:1)");
        QCOMPARE(m_command.run(convert + u"--verbose"_s).err.count(u"plain words"_s), 1);
    }

    void standardInput_isLeftAlone()
    {
        // A waiting 'q' would end the tool early, and a loop's list of videos would be eaten.
        const QString printed = m_command.shell(
            u"printf 'q\\nq\\n' | { '%1' convert --to MKV video.mov -o q.mkv && cat; }"_s.arg(
                Command::program()));
        QVERIFY2(printed.endsWith(u"\nq\nq\n"_s), qPrintable(printed));
    }

    void noUsageEvent_isSent()
    {
        QTcpServer collector;
        QVERIFY(collector.listen(QHostAddress::LocalHost));
        qputenv("VIDEO_CONVERTER_COLLECTOR_URL",
            "http://127.0.0.1:" + QByteArray::number(collector.serverPort()));
        QCOMPARE(m_command.run(u"probe video.mov"_s).exitCode, 0);
        qunsetenv("VIDEO_CONVERTER_COLLECTOR_URL");
        QVERIFY(!collector.waitForNewConnection(200));
    }
};

QTEST_GUILESS_MAIN(TestOutput)
#include "tst_output.moc"
