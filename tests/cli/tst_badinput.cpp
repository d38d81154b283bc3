// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

using namespace Qt::StringLiterals;

/// Every bad video ends with its own message and code, leaves nothing behind and is left as it was.
class TestBadInput : public QObject {
    Q_OBJECT

    [[nodiscard]] Finished convert(const QString &video, const QString &entry = u"MP4"_s) const
    {
        return m_command.run(u"convert -o out/result --to"_s, { entry, u"--"_s, video });
    }

    Command m_command;

private Q_SLOTS:
    void initTestCase()
    {
        const QString video = m_command.path(u"video.mp4"_s);
        const QStringList mpeg4{ u"-c:v"_s, u"mpeg4"_s };
        Media::video(video, 2);
        Media::video(m_command.path(u"short.mp4"_s), 1, u"160x120"_s, { u"-t"_s, u"0.6"_s });
        Media::video(m_command.path(u"video.mkv"_s), 4, u"160x120"_s, mpeg4);
        Media::ffmpeg({ u"-i"_s, video, u"-vn"_s, m_command.path(u"sound.wav"_s) });
        Media::ffmpeg({ u"-i"_s, video, u"-an"_s, m_command.path(u"silent.mp4"_s) });
        m_command.shell(u"mkdir out; mkfifo fifo.mp4; touch empty.mp4\n"
                        "half() { head -c $(($(wc -c < $1) / 2)) $1; }\n"
                        "half video.mp4 > cut.mp4; half video.mkv > cut.mkv\n"
                        "yes 'Once upon a time.' | head -n 500 > text.mp4"_s);
    }

    void video_isRefused_data()
    {
        const Utf8 noVideo = "The file is not a video, or it is damaged or incomplete.";
        addRows<Utf8, Utf8>({ "video", "message" },
            { { "missing", "missing.mp4", "There is no such file." },
                { "empty name", "", "This is a folder, not a video." },
                { "FIFO", "fifo.mp4", "This is a pipe or a device, not a file." },
                { "device", "/dev/zero", "This is a pipe or a device, not a file." },
                { "empty file", "empty.mp4", "The file is empty." },
                { "text", "text.mp4", noVideo }, { "cut in the middle", "cut.mp4", noVideo },
                { "too short", "short.mp4", "The video is shorter than one second." } });
    }
    void video_isRefused()
    {
        QFETCH(const QString, video);
        QFETCH(const QString, message);
        const QString end = u"3: "_s + video + u": "_s + message + u'\n';
        const QStringList before = m_command.listing();
        QCOMPARE(convert(video).end(), end);
        const Finished probed = m_command.run(u"probe --json"_s, { video });
        QCOMPARE(probed.end() + probed.out, end);
        QCOMPARE(m_command.listing(), before);
    }

    void unreadableVideo_isRefused()
    {
        Command command;
        command.write(u"video.mp4"_s, "x");
        QFile::setPermissions(command.path(u"video.mp4"_s), {});
        QCOMPARE(command.run(u"probe video.mp4"_s).end(),
            u"3: video.mp4: The file may not be read: permission denied.\n"_s);
    }

    void strangeTool_fails_data()
    {
        addRows<Utf8, Utf8, Utf8>({ "tool", "script", "end" },
            { { "a library's word in front", "ffprobe",
                  R"(print:{library}\n|out:{"format":{"size":"17"}})",
                  "3: video.mp4: The file does not say how long it plays.\n" },
                { "broken tool", "ffprobe", R"(print:no library\n|exit:127)",
                    "5: video.mp4: The tool can't examine videos: no library\n" },
                { "flood that is not UTF-8", "ffmpeg",
                    R"(output|flood:50000000|print:\xff bad \xd0\nlast words\n|exit:1)",
                    "1: video.mp4: The tool failed: last words\n" } });
    }
    void strangeTool_fails()
    {
        QFETCH(const QString, tool);
        QFETCH(const QString, script);
        const QStringList before = m_command.listing();
        const ToolSwap swap(tool, ToolSwap::With::FakeTool, script.toUtf8());
        QTEST(convert(u"video.mp4"_s).end(), "end");
        QCOMPARE(m_command.listing(), before);
    }

    void unsuitableOutput_isReported()
    {
        const QStringList before = m_command.listing();
        const QString message = u": The video contains nothing that this output can hold.\n"_s;
        QCOMPARE(convert(u"sound.wav"_s, u"GIF"_s).end(), u"1: sound.wav"_s + message);
        QCOMPARE(convert(u"silent.mp4"_s, u"audio"_s).end(), u"1: silent.mp4"_s + message);
        QCOMPARE(m_command.listing(), before);
        // What the tool could read of a cut video is kept.
        const QString end = convert(u"cut.mkv"_s, u"MKV"_s).end();
        QVERIFY2(end.startsWith(u"1: cut.mkv: The converting progress was finished at "_s),
            qPrintable(end));
        QVERIFY(QFile::remove(m_command.path(u"out/result"_s)));
    }

    void missingTool_isReported()
    {
        using With = ToolSwap::With;
        m_command.write(u"precious"_s, "precious");
        const QStringList before = m_command.listing();
        for (const auto &[tool, replacement] :
            { std::pair{ u"ffmpeg"_s, With::UnexecutableFile }, { u"ffprobe"_s, With::Nothing } }) {
            const ToolSwap swap(tool, replacement);
            // Only ffprobe is needed without a conversion.
            QCOMPARE(
                m_command.run(u"probe --json video.mp4"_s).exitCode, tool == "ffprobe"_L1 ? 5 : 0);
            const QString end
                = m_command.run(u"convert --to MP4 --overwrite video.mp4 -o precious"_s).end();
            QVERIFY2(end.startsWith(u"5: "_s) && end.contains(u"/Contents/ffmpeg/"_s + tool),
                qPrintable(end));
            QCOMPARE(m_command.listing(), before);
            QCOMPARE(m_command.contents(u"precious"_s), "precious");
        }
    }
};

QTEST_GUILESS_MAIN(TestBadInput)
#include "tst_badinput.moc"
