// SPDX-License-Identifier: MIT
#include "engine/Async.h"
#include "engine/Conversion.h"
#include "engine/Progress.h"
#include "engine/RunReport.h"
#include "engine/StagedFile.h"
#include "engine/StagedList.h"
#include "engine/Verdict.h"
#include "support/Console.h"
#include "tests/fixtures/Folder.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QDir>
#include <QStandardPaths>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Whole jobs: what they say of their result, and what becomes of an older file.
class TestJob : public QObject, private Folder {
    Q_OBJECT

    [[nodiscard]] ConversionJob job(
        const QString &source, const QString &dest, const QString &entry)
    {
        const JSON info = JSON::parse(Media::run(u"ffprobe"_s,
            { u"-v"_s, u"quiet"_s, u"-print_format"_s, u"json"_s, u"-show_format"_s,
                u"-show_streams"_s, path(source) }));
        return { path(source), path(dest), *videoConstraints(entry, u"audio"_s, {}, {}), info };
    }
    std::shared_ptr<Progress> start(
        const ConversionJob &job, OlderFile olderFile = OlderFile::Replaced)
    {
        m_errors.clear();
        return Conversion::start(job, olderFile, [this](const std::optional<QString> &errmsg) {
            m_errors << errmsg.value_or(u"(none)"_s);
        });
    }
    Outcome done(const ConversionJob &job, OlderFile olderFile = OlderFile::Replaced)
    {
        const auto progress = start(job, olderFile);
        [&] { QTRY_VERIFY_WITH_TIMEOUT(progress->isEnded(), 60'000); }();
        QCoreApplication::processEvents();
        return progress->outcome();
    }
    /// The sentence and the remarks. Where the first damage lies depends on the tool's speed.
    static QString said(Outcome outcome)
    {
        outcome.firstDamage.reset();
        return (QStringList{ sentenceOf(outcome) } + remarksOn(outcome)).join(u'|');
    }
    [[nodiscard]] QStringList results() const
    {
        return QDir(path()).entryList({ u"out*"_s, u".*"_s }, QDir::Files | QDir::Hidden);
    }
    [[nodiscard]] static QStringList entries()
    {
        return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
            + u"/VideoConverter/staged files/"_s + QSysInfo::machineHostName())
            .entryList(QDir::Files);
    }

    QStringList m_errors;

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([](const QString &) {});
        const auto make = [this](const QString &arguments, const QString &name) {
            QStringList list = arguments.split(u' ');
            list.replaceInStrings(u"PATH"_s, path());
            Media::ffmpeg(list << path(name));
        };
        Media::video(path(u"whole.mp4"_s), 8, u"320x180"_s);
        make(u"-i PATH/whole.mp4 -c copy -movflags +faststart"_s, u"fast.mp4"_s);
        make(u"-i PATH/whole.mp4 -c copy"_s, u"whole.mkv"_s);
        make(u"-i PATH/whole.mp4 -c:v mpeg4 -s 321x181 -an"_s, u"odd.avi"_s);
        make(u"-f lavfi -i color=red:s=301x301 -frames:v 1"_s, u"cover.png"_s);
        make(u"-i PATH/whole.mp4 -c:v libx264 -bf 3 -an"_s, u"bframes.avi"_s);
        make(u"-i PATH/whole.mp4 -i PATH/cover.png -map 0:a -map 1 -c:a flac -ar 192000 -c:v copy "
             "-disposition:v attached_pic"_s,
            u"studio.flac"_s);
        make(u"-i PATH/cover.png -i PATH/whole.mp4 -map 0 -map 1:v -c:v:0 mjpeg -c:v:1 copy"_s,
            u"cover.mkv"_s);
        make(u"-f lavfi -i testsrc2=d=4 -i PATH/whole.mp4 -map 0 -map 1:a -c:v flv -c:a mp3"_s,
            u"short-picture.flv"_s);
        make(u"-i PATH/whole.mp4 -t 2 -c copy"_s, u"small.mp4"_s);
        make(u"-i PATH/small.mp4 -c:v mjpeg"_s, u"camera.avi"_s);
        make(u"-i PATH/whole.mp4 -i PATH/small.mp4 -map 0:v -map 1:a -c copy"_s, u"uneven.mp4"_s);
        make(u"-i PATH/whole.mp4 -t 2 -c:v mpeg4 -c:a libmp3lame -ac 1"_s, u"mono.mkv"_s);
        make(u"-i PATH/whole.mp4"_s, u"sound.wav"_s);
        make(u"-f lavfi -i aevalsrc=if(lt(t\\,2)\\,0\\,random(0)):d=4"_s, u"quiet-start.aac"_s);
        for (const QString &name : { u"fast.mp4"_s, u"whole.mkv"_s, u"sound.wav"_s }) {
            const QByteArray bytes = contents(name);
            write(u"cut-"_s + name, bytes.first(bytes.size() / 2));
        }
        make(u"-i PATH/whole.mp4 -vn -c:a mp2 -f mpegts"_s, u"holed.ts"_s);
        const QByteArray stream = contents(u"holed.ts"_s);
        const qsizetype quarter = stream.size() / 4;
        write(u"holed.ts"_s,
            stream.first(quarter) + QByteArray(quarter, '\0') + stream.last(2 * quarter));
        QByteArray holed = contents(u"fast.mp4"_s);
        write(u"holed.mp4"_s, holed.first(holed.size() / 2).leftJustified(holed.size(), '\0'));
        holed = contents(u"whole.mp4"_s);
        // The movie header's length, in milliseconds.
        holed.replace(holed.indexOf("mvhd") + 20, 4, QByteArray("\0\1\0\0", 4));
        write(u"boasting.mp4"_s, holed);
    }
    void cleanup()
    {
        QCOMPARE(Processes::children(), QStringList());
        QVERIFY(!results().join(u' ').contains(u".video-converter"_s));
        QCOMPARE(entries(), QStringList());
        for (const QString &name : results())
            QFile::remove(path(name));
    }

    void result_isMeasured_data()
    {
        const Utf8 cutAt4
            = "The converting progress was finished at 4s|The video is damaged in places.";
        addRows<Utf8, Utf8, Utf8>({ "source", "entry", "said" },
            { { "whole", "whole.mp4", "MKV", "" }, { "cut", "cut-fast.mp4", "MKV", cutAt4 },
                { "cut, encoded", "cut-whole.mkv", "AVI", cutAt4 },
                { "odd size", "odd.avi", "MP4",
                    "|The picture was made a little smaller, because this output needs even "
                    "sizes." },
                { "two causes", "studio.flac", "MP4",
                    "|The cover picture was left out, because this output can't show it."
                    "|The sound was encoded anew, because this output can't take it as it is." },
                { "cover as a track", "cover.mkv", "MKV",
                    "|The cover picture was left out, because this output can't show it." },
                { "picture shorter than the file", "short-picture.flv", "GIF", "" },
                { "cut sound", "cut-sound.wav", "MKV", cutAt4 },
                { "length that the tool only guesses", "quiet-start.aac", "MKV", "" },
                { "second half never written, copied", "holed.mp4", "MKV", cutAt4 },
                { "a part lost on the air, encoded", "holed.ts", "audio",
                    "The converting progress was finished at 5s|The video is damaged in places." },
                { "longer than its streams", "boasting.mp4", "MKV",
                    "The converting progress was finished at 8s" },
                { "frames without time stamps", "bframes.avi", "MKV",
                    "|The picture was encoded anew, because this output can't take it as it "
                    "is." } });
    }
    void result_isMeasured()
    {
        QFETCH(const QString, source);
        QFETCH(const QString, entry);
        QTEST(said(done(job(source, u"out"_s, entry))), "said");
        QVERIFY(QFile::exists(path(u"out"_s)));
    }

    void everyFormat_isReallyMade_data()
    {
        using enum ConversionFormat;
        addRows<ConversionFormat, Utf8, Utf8, Utf8>({ "format", "container", "video", "audio" },
            { { "FLV", flv, "flv", "h264", "mp3" },
                { "MP4", mp4, "mov,mp4,m4a,3gp,3g2,mj2", "h264", "aac" },
                { "MKV", mkv, "matroska,webm", "h264", "aac" },
                { "MPEG-4", mov, "mov,mp4,m4a,3gp,3g2,mj2", "mpeg4", "aac" },
                { "AVI", avi, "avi", "mpeg4", "mp3" }, { "MP3", mp3, "mp3", "", "mp3" },
                { "MPEG-2", mpg, "mpeg", "mpeg2video", "ac3" }, { "GIF", gif, "gif", "gif", "" },
                { "WebM", webm, "matroska,webm", "vp8", "vorbis" } });
    }
    void everyFormat_isReallyMade()
    {
        QFETCH(const ConversionFormat, format);
        const QString result = path(u"out"_s);
        const auto length = [](const QString &file) {
            return Media::formatEntry(file, u"duration"_s).toDouble();
        };
        for (const QString &source : { u"small.mp4"_s, u"mono.mkv"_s }) {
            ConversionJob request = job(source, u"out"_s, u"MP4"_s);
            request.constraints.format = format;
            QCOMPARE(said(done(request)), QString());
            QTEST(Media::formatEntry(result, u"format_name"_s), "container");
            QTEST(Media::streamEntry(result, u"v:0"_s, u"codec_name"_s), "video");
            QTEST(Media::streamEntry(result, u"a:0"_s, u"codec_name"_s), "audio");
            QVERIFY(qAbs(length(result) - length(path(source))) < 0.3);
        }
    }

    void olderFile_outlivesEverythingButSuccess_data()
    {
        addRows<Utf8, Utf8, Utf8>({ "source", "script", "results" },
            { { "success", "whole.mp4", "", "out.mkv" },
                { "short", "cut-fast.mp4", "", "out (earlier 2).mkv out (earlier).mkv out.mkv" },
                { "failure", "whole.mp4", "output|exit:1", "out.mkv" },
                { "cancelled", "whole.mp4", "output|forever", "out.mkv" } });
    }
    void olderFile_outlivesEverythingButSuccess()
    {
        QFETCH(const QString, source);
        QFETCH(const QString, script);
        QFETCH(const QString, results);
        write(u"out.mkv"_s, "older");
        if (results.contains(u"earlier"))
            write(u"out (earlier).mkv"_s, "oldest");
        QVERIFY(QFile::setPermissions(path(u"out.mkv"_s), QFile::ReadOwner | QFile::WriteOwner));
        const ConversionJob request = job(source, u"out.mkv"_s, u"MKV"_s);
        std::optional<ToolSwap> swap;
        if (!script.isEmpty())
            swap.emplace(u"ffmpeg"_s, ToolSwap::With::FakeTool, script.toUtf8());
        const auto progress = start(request);
        if (script.contains(u"forever")) {
            QTRY_COMPARE(this->results().size(), 2);
            progress->cancel();
        }
        QTRY_VERIFY_WITH_TIMEOUT(progress->isEnded(), 20'000);
        QCOMPARE(this->results().join(u' '), results);
        const bool isReplaced = script.isEmpty();
        QCOMPARE(contents(u"out.mkv"_s) == "older", !isReplaced);
        if (results.contains(u"earlier"))
            QCOMPARE(contents(u"out (earlier 2).mkv"_s), "older");
        QCOMPARE(QFile::permissions(path(u"out.mkv"_s)) & QFile::Permissions(0x77),
            QFile::Permissions());
        QCOMPARE(done(request, OlderFile::Kept).reason, Reason::DestinationExists);
    }

    void linkAsDestination_stays()
    {
        write(u"out-target"_s, "older");
        QVERIFY(QFile::link(u"out-target"_s, path(u"out.mkv"_s)));
        const ConversionJob request = job(u"whole.mp4"_s, u"out.mkv"_s, u"MKV"_s);
        {
            const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|exit:1");
            QCOMPARE(kindOf(done(request)), OutcomeKind::Failed);
            QVERIFY(QFileInfo(path(u"out.mkv"_s)).isSymbolicLink());
            QCOMPARE(contents(u"out-target"_s), "older");
        }
        QCOMPARE(done(request), Outcome{});
        QVERIFY(QFileInfo(path(u"out.mkv"_s)).isSymbolicLink());
        QVERIFY(contents(u"out-target"_s).size() > 1000);
    }

    void fileThatCameMeanwhile_isKept()
    {
        const ConversionJob request = job(u"whole.mp4"_s, u"out.mkv"_s, u"MKV"_s);
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|sleep:400");
        const auto progress = start(request, OlderFile::Kept);
        QTRY_COMPARE(results().size(), 1);
        write(u"out.mkv"_s, "somebody's");
        QTRY_VERIFY(progress->isEnded());
        QCOMPARE(progress->outcome().reason, Reason::DestinationExists);
        QCOMPARE(contents(u"out.mkv"_s), "somebody's");
        QTRY_COMPARE(m_errors.size(), 1);
    }

    void failureOfAllTries_namesTheFirstCause()
    {
        const ConversionJob request = job(u"odd.avi"_s, u"out.mp4"_s, u"MP4"_s);
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
            "print:[libx264 @ 0x5] height not divisible by 2 (320x181)\\n|exit:1");
        QCOMPARE(
            said(done(request)), u"This output can't hold a picture of odd width or height."_s);
        ToolSwap::setScript("print:codec not currently supported in container\\n|exit:1");
        QCOMPARE(said(done(job(u"sound.wav"_s, u"out.mp4"_s, u"MP4"_s))),
            u"This output can't hold the video's sound."_s);
    }

    // The next start removes what a killed program left, and nothing that somebody holds.
    void abandonedFile_isRemoved()
    {
        StagedFile held(path(u"out.mkv"_s));
        QVERIFY(!held.create());
        const pid_t child = ::fork();
        if (child == 0) {
            StagedFile left(path(u"out.mp4"_s));
            ::_exit(left.create() ? 1 : ::raise(SIGKILL));
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(results().size(), 2);
        StagedList::removeAbandoned();
        QCOMPARE(results(), QStringList{ QFileInfo(held.path()).fileName() });
        QCOMPARE(entries().size(), 1);
    }

    void stagedFile_isLostToNobody()
    {
        for (const QString &name : { QString(256, u'x'), u"🎬"_s.repeated(64) })
            QCOMPARE(StagedFile(path(name)).create()->reason, Reason::NameTooLong);
        QVERIFY(QDir(path()).mkdir(u"old"_s));
        {
            StagedFile staged(path(u"old/out.mkv"_s));
            QVERIFY(!staged.create() && QFile::rename(path(u"old"_s), path(u"new"_s)));
            QCOMPARE(staged.moveIntoPlace(true, Progress(-1))->reason, Reason::FolderMissing);
        }
        QVERIFY(QDir().rmdir(path(u"new"_s)) && entries().isEmpty());

        write(u"out.mkv"_s, "older");
        Progress cancelled(-1);
        cancelled.cancel();
        StagedFile staged(path(u"out.mkv"_s));
        QVERIFY(!staged.create());
        QCOMPARE(staged.moveIntoPlace(true, cancelled)->reason, Reason::Cancelled);
        QCOMPARE(contents(u"out.mkv"_s), "older");
        // Under its other name the file goes on to be, as where it can't be removed.
        const QByteArray name = QFile::encodeName(staged.path());
        QCOMPARE(::link(name.constData(), QFile::encodeName(path(u"link"_s)).constData()), 0);
        QVERIFY(!staged.create());
        QCOMPARE(entries().size(), 2);
        StagedList::removeAbandoned();
        QCOMPARE(entries().size(), 1);
    }

    void entry_namesAStagedFile()
    {
        const QByteArray name = ".video-converter-01abcd";
        for (const QByteArray &entry :
            { "/a b/" + name + ".mp4", "/a\nb/" + name + ".mp4", "/a/" + name })
            QCOMPARE(StagedList::stagedPathOf(entry).toUtf8(), entry);
        // Somebody's file, a relative path, one in a folder of that name, and no texts.
        for (const QByteArray &entry : { QByteArray("/home/diary.txt"), name + ".mp4",
                 "/a/" + name + ".mp4/b", QByteArray("/a\0/", 4) + name, "/\xff/" + name })
            QVERIFY2(StagedList::stagedPathOf(entry).isEmpty(), entry.constData());
    }

    void videosOwnTexts_swayNothing()
    {
        const QByteArray output = "  Metadata:\n    title           : x\xc2\x85"
                                  "Error writing trailer of it, time=00:00:09.00 bitrate\n"
                                  "/x/a\nError closing file.mp4\n"
                                  "frame= 1 time=00:00:03.50 bitrate= 1\r"
                                  "[h264 @ 0x5] error while decoding MB 1 2\n"
                                  "[h264 @ 0x5] concealing 3\n"
                                  "video:0kB audio:12kB subtitle:0kB\n";
        const QStringList paths{ u"/x/a\nError closing file.mp4"_s };
        QVERIFY(!reportsLostOutput(output, paths));
        const RunReport report = reportOf(output, paths);
        QCOMPARE(report.position, std::optional(3.5));
        QCOMPARE(report.damagedPlaces, 1);
        QCOMPARE(report.firstDamage, std::optional(qint64{ 3 }));
        QCOMPARE(report.pictureBytes, std::optional(qint64{ 0 }));
        QVERIFY(reportsLostOutput(output + "Error writing trailer of out: No space\n", paths));
    }

    void doubtfulResult_isRead()
    {
        const auto isDoubtful = [](const QByteArray &output, double length = 10, Outcome run = {}) {
            return isInDoubt(run, reportOf(output, {}), { length, length });
        };
        const QByteArray end = "frame= 1 time=00:00:09.00 bitrate= 1\r";
        const QByteArray sums = "video:1kB audio:1kB subtitle:0kB\n";
        QVERIFY(!isDoubtful(end + sums));
        for (const QByteArray &output : { sums, end, end + "video:0kB audio:1kB subtitle:0kB\n",
                 end + "video:1kB audio:0kB subtitle:0kB\n",
                 "[h264 @ 0x5] error while decoding MB 1 2\n" + end + sums })
            QVERIFY2(isDoubtful(output), output.constData());
        QVERIFY(isDoubtful(end + sums, 10.1) && isDoubtful(end + sums, 0));
        QVERIFY(isDoubtful(end + sums, 10, { Reason::Incomplete }));
    }

    void packets_areAddedUp()
    {
        PacketReader reader;
        for (const char *chunk : { "video,0,1.0,N/A,0.5\nvideo,0,N/", "A,3.0,0.5\naudio,1,0.0,0.0,",
                 "2.0\nvideo,2,0,0,9\nnonsense\nvideo\n" })
            reader.append(chunk);
        const Lengths lengths = reader.lengths();
        QCOMPARE(lengths.picture, std::optional(2.5));
        QCOMPARE(lengths.sound, std::optional(2.0));
        QCOMPARE(judged(lengths, { 2.5, 2.0 }), Outcome{});
        QCOMPARE(judged(lengths, { 3.6, 2.0 }).seconds, 2);
        QCOMPARE(judged({ {}, 2.0 }, { 2.5, 2.0 }).reason, Reason::PictureMissing);
        QCOMPARE(judged({ 2.5, {} }, { 2.5, 2.0 }).reason, Reason::SoundMissing);
        QCOMPARE(judged({ 1000, 991 }, { 1000, 1000 }), Outcome{});
        QVERIFY(!expectedOf(job(u"sound.wav"_s, u"out"_s, u"MKV"_s)).picture);
        QVERIFY(expectedOf(job(u"camera.avi"_s, u"out"_s, u"MKV"_s)).picture);
        QVERIFY(expectedOf(job(u"uneven.mp4"_s, u"out"_s, u"MKV"_s)).sound < 3);
    }
};

QTEST_GUILESS_MAIN(TestJob)
#include "tst_job.moc"
