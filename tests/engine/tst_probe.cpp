// SPDX-License-Identifier: MIT
#include "engine/Async.h"
#include "engine/FFMPEG.h"
#include "engine/MovieProbe.h"
#include "engine/Tool.h"
#include "support/Console.h"
#include "support/FileSystem.h"
#include "support/MainQueue.h"
#include "tests/fixtures/Folder.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void probe(const QString &path, QStringList &answers)
{
    FFMPEG::collectMovieInfo(
        path,
        [&answers](const Outcome &refusal) {
            QVERIFY(MainQueue::isMainThread());
            answers += sentenceOf(refusal);
        },
        [path, &answers](const JSON &info, const QImage &cover, const QString &duration) {
            QVERIFY(MainQueue::isMainThread());
            QVERIFY(!info[u"streams"_s].array().empty());
            QCOMPARE(info[u"format"_s][u"size"_s].string(), QString::number(fileSize(path)));
            answers += u"%1, %2 x %3"_s.arg(duration).arg(cover.width()).arg(cover.height());
        });
}

}

class TestProbe : public QObject, private Folder {
    Q_OBJECT

    QStringList m_lines;

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink(
            [this](const QString &line) { MainQueue::post([=, this] { m_lines << line; }); });
        Media::video(path(u"five.mp4"_s), 5, u"320x180"_s);
        Media::video(path(u"fifteen.mkv"_s), 15);
        Media::ffmpeg({ u"-i"_s, path(u"five.mp4"_s), path(u"sound.mp3"_s) });
        Media::ffmpeg({ u"-f"_s, u"lavfi"_s, u"-i"_s, u"color=s=8192x4320:r=1:d=3"_s, u"-c:v"_s,
            u"mjpeg"_s, path(u"8k.mov"_s) });
        QCOMPARE(::mkfifo(QFile::encodeName(path(u"fifo.mp4"_s)).constData(), 0600), 0);
    }

    void file_getsOneAnswer_data()
    {
        addRows<Utf8, Utf8, Utf8>({ "name", "missingTool", "answer" },
            {
                { "video", "five.mp4", "", "5s, 320 x 180" },
                { "cover would lie behind the end", "fifteen.mkv", "", "15s, 0 x 0" },
                { "large picture", "8k.mov", "", "3s, 8192 x 4320" },
                { "sound alone", "sound.mp3", "", "5s, 0 x 0" },
                { "missing", "nothing.mp4", "", "There is no such file." },
                { "folder", ".", "", "This is a folder, not a video." },
                { "FIFO", "fifo.mp4", "", "This is a pipe or a device, not a file." },
                { "no ffprobe", "five.mp4", "ffprobe",
                    "The tool TOOL is missing or can't be run." },
                { "no ffmpeg, so no cover", "five.mp4", "ffmpeg", "5s, 0 x 0" },
            });
    }
    void file_getsOneAnswer()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, missingTool);
        QFETCH(QString, answer);
        answer.replace(u"TOOL"_s, toolPath(Tool::Ffprobe));
        std::optional<ToolSwap> swap;
        if (!missingTool.isEmpty())
            swap.emplace(missingTool, ToolSwap::With::Nothing);
        m_lines.clear();
        QStringList answers;
        probe(path(name), answers);
        QCOMPARE(answers, QStringList());
        QTRY_COMPARE(answers, QStringList{ answer });
        SerialQueue::waitForAll();
        QCoreApplication::processEvents();
        QCOMPARE(answers, QStringList{ answer });
        QCOMPARE(m_lines.filter(u"something bad happened: "_s).size(), swap ? 1 : 0);
    }

    void information_isChecked_data()
    {
        const auto accepted = Reason::Done;
        addRows<Utf8, Reason>({ "format", "refusal" },
            {
                { "one second", R"("duration":"1.000000","size":"500")", accepted },
                { "long", R"("duration":"83.450000","size":"500")", accepted },
                { "half a second", R"("duration":"0.5","size":"500")", Reason::TooShort },
                { "no duration", R"("size":"500")", Reason::NoDuration },
                { "numeric duration", R"("duration":8,"size":"500")", Reason::NoDuration },
                { "bad duration", R"("duration":"N/A","size":"500")", Reason::NoDuration },
                { "no size", R"("duration":"83.4")", Reason::NoSize },
                { "no size, too short", R"("duration":"0.4")", Reason::NoSize },
                { "numeric size", R"("duration":"83.4","size":500)", Reason::NoSize },
                { "growing", R"("duration":"83.4","size":"499")", Reason::SizeDiffers },
                { "bad size", R"("duration":"83.4","size":"5e2")", Reason::SizeDiffers },
            });
    }
    void information_isChecked()
    {
        QFETCH(const QString, format);
        const JSON info = JSON::parse(R"({"format":{)" + format.toUtf8() + "}}");
        const auto result = MovieProbe::checked(info, 500);
        const auto *refusal = std::get_if<Outcome>(&result);
        QTEST(refusal ? refusal->reason : Reason::Done, "refusal");
    }

    void length_choosesCoverAndBucket_data()
    {
        addRows<qint64, Utf8, Utf8>({ "seconds", "cover", "bucket" },
            {
                { "0 s", 0, "00:00:00", "0-1" },
                { "9 s", 9, "00:00:02", "0-1" },
                { "10 s", 10, "00:00:20", "0-1" },
                { "59 s", 59, "00:00:20", "0-1" },
                { "1 min", 60, "00:00:40", "1-5" },
                { "4 min 59 s", 299, "00:00:40", "1-5" },
                { "5 min", 300, "00:00:40", "5-10" },
                { "10 min", 600, "00:00:40", "10-20" },
                { "20 min", 1200, "00:00:40", "20-40" },
                { "39 min 59 s", 2399, "00:00:40", "20-40" },
                { "40 min", 2400, "00:00:40", ">40" },
                { "59 min 59 s", 3599, "00:00:40", ">40" },
                { "1 h", 3600, "00:40:00", ">40" },
                { "negative", -120, "00:00:00", ">40" },
            });
    }
    void length_choosesCoverAndBucket()
    {
        QFETCH(const qint64, seconds);
        QTEST(MovieProbe::coverOffset(DurationInfo(seconds)), "cover");
        QTEST(MovieProbe::lengthBucket(seconds), "bucket");
    }

    void cover_needsATemporaryFolder()
    {
        const QByteArray temporary = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc");
        QStringList answers;
        probe(path(u"five.mp4"_s), answers);
        QTRY_COMPARE(answers, QStringList{ u"5s, 0 x 0"_s });
        temporary.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
        probe(path(u"five.mp4"_s), answers);
        QTRY_COMPARE(answers.value(1), u"5s, 320 x 180"_s);
    }

    void cover_isPrivateAndRemoved()
    {
        // The last test: what shutDown() ends does not begin again.
        const Folder temporary;
        qputenv("TMPDIR", QFile::encodeName(temporary.path()));
        QStringList answers;
        {
            const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "arguments|sleep:500");
            probe(path(u"five.mp4"_s), answers);
            QTRY_VERIFY(!temporary.files().isEmpty());
            QTRY_COMPARE(
                QFile::permissions(temporary.path(temporary.files())) & QFile::Permissions(0x0077),
                QFile::Permissions());
            QTRY_COMPARE(answers.size(), 1);
        }
        QTRY_COMPARE(temporary.files(), QString());
        QStringList arguments = m_lines.constLast().trimmed().split(u'\t').mid(1);
        const QString image = std::exchange(arguments[5], u"IMAGE.jpg"_s);
        QCOMPARE(arguments.join(u' '),
            u"-an -ss 00:00:02 -i "_s + path(u"five.mp4"_s) + u" IMAGE.jpg -y"_s);
        QVERIFY2(
            image.startsWith(temporary.path()) && image.endsWith(u".jpg"_s), qPrintable(image));
        // A probe whose tool is silent for ever does not hold up the program's end.
        const ToolSwap swap(u"ffprobe"_s, ToolSwap::With::FakeTool, "forever");
        probe(path(u"five.mp4"_s), answers);
        FFMPEG::shutDown();
    }
};

QTEST_GUILESS_MAIN(TestProbe)
#include "tst_probe.moc"
