// SPDX-License-Identifier: MIT
#include "engine/Async.h"
#include "engine/FFMPEG.h"
#include "engine/MovieProbe.h"
#include "engine/Task.h"
#include "support/Console.h"
#include "support/MainQueue.h"
#include "tests/fixtures/Folder.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QFile>
#include <QThread>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

void probe(const QString &path, QStringList &answers)
{
    FFMPEG::collectMovieInfo(
        path,
        [&answers](const Outcome &refusal) {
            QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
            answers += sentenceOf(refusal);
        },
        [path, &answers](const JSON &info, const QImage &cover, const QString &duration) {
            QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
            QVERIFY(!info[u"streams"_s].array().empty());
            QCOMPARE(
                info[u"format"_s][u"size"_s].string(), QString::number(QFileInfo(path).size()));
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
            { { "video", "five.mp4", "", "5s, 320 x 180" },
                { "cover would lie behind the end", "fifteen.mkv", "", "15s, 0 x 0" },
                { "large picture", "8k.mov", "", "3s, 8192 x 4320" },
                { "sound alone", "sound.mp3", "", "5s, 0 x 0" },
                { "FIFO", "fifo.mp4", "", "This is a pipe or a device, not a file." },
                { "no ffprobe", "five.mp4", "ffprobe",
                    "The tool TOOL is missing or can't be run." },
                { "no ffmpeg, so no cover", "five.mp4", "ffmpeg", "5s, 0 x 0" } });
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

    void information_isChecked()
    {
        const std::pair<QByteArray, Reason> formats[]{
            { R"("duration":"1.000000","size":"500")", Reason::Done },
            { R"("duration":"0.5","size":"500")", Reason::TooShort },
            { R"("size":"500")", Reason::NoDuration },
            { R"("duration":"N/A","size":"500")", Reason::NoDuration },
            { R"("duration":"0.4")", Reason::NoSize },
            { R"("duration":"83.4","size":"499")", Reason::SizeDiffers },
            { R"("duration":"83.4","size":"5e2")", Reason::SizeDiffers },
        };
        for (const auto &[format, reason] : formats) {
            const auto result
                = MovieProbe::checked(JSON::parse(R"({"format":{)" + format + "}}"), 500);
            const auto *refusal = std::get_if<Outcome>(&result);
            QVERIFY2((refusal ? refusal->reason : Reason::Done) == reason, format.constData());
        }
    }

    void length_choosesCoverAndBucket()
    {
        const std::pair<qint64, QString> lengths[]{ { 0, u"00:00:00 0-1"_s },
            { 1, u"00:00:02 0-1"_s }, { 9, u"00:00:02 0-1"_s }, { 10, u"00:00:20 0-1"_s },
            { 59, u"00:00:20 0-1"_s }, { 60, u"00:00:40 1-5"_s }, { 299, u"00:00:40 1-5"_s },
            { 300, u"00:00:40 5-10"_s }, { 600, u"00:00:40 10-20"_s },
            { 1200, u"00:00:40 20-40"_s }, { 2399, u"00:00:40 20-40"_s },
            { 2400, u"00:00:40 >40"_s }, { 3599, u"00:00:40 >40"_s }, { 3600, u"00:40:00 >40"_s },
            { -120, u"00:00:00 >40"_s } };
        for (const auto &[seconds, expected] : lengths) {
            const QString cover = MovieProbe::coverOffset(DurationInfo(seconds));
            QCOMPARE(cover + u' ' + MovieProbe::lengthBucket(seconds), expected);
        }
    }

    void cover_isPrivateAndRemoved()
    {
        // The last test: what shutDown() ends does not begin again.
        const Folder temporary;
        QStringList answers;
        qputenv("TMPDIR", "/proc");
        probe(path(u"five.mp4"_s), answers);
        QTRY_COMPARE(answers, QStringList{ u"5s, 0 x 0"_s });
        answers.clear();
        qputenv("TMPDIR", QFile::encodeName(temporary.path()));
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
