// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/SerialQueue.h"
#include "planning/ConversionDescriptor.h"
#include "support/Console.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// The sanitizers are slow, and keep freed memory back.
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

/// Films that the real tool makes, examined by the real one; and what many runs leave behind.
class TestRealTool : public QObject {
    Q_OBJECT

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    // Probes and converts; gives the message of a failure, empty for success.
    static QString convert(
        const QString &source, const QString &dest, const VideoConstraints &constraints)
    {
        std::shared_ptr<Progress> progress;
        QString failure;
        const auto fail = [&failure](const std::optional<QString> &errmsg) {
            failure = errmsg.value_or(u"failed"_s);
        };
        FFMPEG::collectMovieInfo(
            source, [&] { failure = u"not supported"_s; },
            [&](const JSON &info, const QImage &, const QString &) {
                progress = FFMPEG::convertFile(source, dest, constraints, info, fail);
            });
        [&] {
            QTRY_VERIFY_WITH_TIMEOUT(
                (progress && progress->isEnded()) || !failure.isEmpty(), 60'000);
        }();
        QCoreApplication::processEvents();
        if (failure.isEmpty() && progress->completedUnitCount() != progress->totalUnitCount())
            failure = u"not at its end"_s;
        return failure.isEmpty() ? failure : failure + QString::fromUtf8(progress->toolOutput());
    }

    // Runs to the end, all at the same time, but for the last one.
    void runFour(bool cancelled)
    {
        const VideoConstraints mkv{ VideoDimensionsConstraints::unlimited(),
            VideoQualityConstraints::unchanged, ConversionFormat::mkv, u"MKV"_s };
        const JSON info = JSON::parse(R"({"streams":[{"codec_type":"video","codec_name":"h264"},)"
                                      R"({"codec_type":"audio","codec_name":"aac"}]})");
        std::map<QString, std::shared_ptr<Progress>> runs;
        for (const QString &name : { u"a.mkv"_s, u"b.mkv"_s, u"c.mkv"_s, u"d.mkv"_s })
            runs[name] = FFMPEG::convertFile(path(u"tiny.mp4"_s), path(name), mkv, info,
                [this](const std::optional<QString> &) { ++m_errors; });
        if (cancelled)
            runs.at(u"d.mkv"_s)->cancel();
        for (const auto &[name, progress] : runs) {
            QTRY_VERIFY_WITH_TIMEOUT(progress->isEnded(), 20'000);
            QCOMPARE(QFile::exists(path(name)), !progress->isCancelled());
            QVERIFY(progress->isCancelled()
                || progress->completedUnitCount() == progress->totalUnitCount());
        }
    }

    QTemporaryDir m_folder;
    int m_errors = 0;

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([](const QString &) {});
        Media::film(path(u"tiny.mp4"_s), 2, u"64x64"_s);
        Media::film(path(u"small.mp4"_s), 4, u"320x180"_s);
        Media::film(path(u"landscape.mp4"_s), 2, u"1280x720"_s);
        Media::film(path(u"portrait.mov"_s), 2, u"360x640"_s);
        Media::film(path(u"mono.mkv"_s), 3, u"320x240"_s,
            u"-c:v mpeg4 -c:a libmp3lame -ar 44100 -ac 1"_s.split(u' '));
    }

    void everyFormat_isReallyMade_data()
    {
        addRows<int, Utf8, Utf8, Utf8>({ "rawFormat", "container", "video", "audio" },
            {
                { "FLV", 1, "flv", "h264", "mp3" },
                { "MP4", 2, "mov,mp4,m4a,3gp,3g2,mj2", "h264", "aac" },
                { "MKV", 3, "matroska,webm", "h264", "aac" },
                { "MPEG-4", 4, "mov,mp4,m4a,3gp,3g2,mj2", "mpeg4", "aac" },
                { "AVI", 5, "avi", "mpeg4", "mp3" },
                { "MP3", 6, "mp3", "", "mp3" },
                { "MPEG-2", 7, "mpeg", "mpeg2video", "ac3" },
                { "GIF", 8, "gif", "gif", "" },
                { "WebM", 9, "matroska,webm", "vp8", "vorbis" },
            });
    }
    void everyFormat_isReallyMade()
    {
        QFETCH(const int, rawFormat);
        const auto format = static_cast<ConversionFormat>(rawFormat);
        const VideoConstraints constraints{ VideoDimensionsConstraints::unlimited(),
            VideoQualityConstraints::unchanged, format, {} };
        const QString result = path(u"out."_s + conversionDescriptor(format).ext);
        for (const QString &source : { path(u"small.mp4"_s), path(u"mono.mkv"_s) }) {
            QCOMPARE(convert(source, result, constraints), QString());
            QTEST(Media::formatEntry(result, u"format_name"_s), "container");
            QTEST(Media::streamEntry(result, u"v:0"_s, u"codec_name"_s), "video");
            QTEST(Media::streamEntry(result, u"a:0"_s, u"codec_name"_s), "audio");
            const double length = Media::formatEntry(result, u"duration"_s).toDouble();
            const double expected = Media::formatEntry(source, u"duration"_s).toDouble();
            QVERIFY2(qAbs(length - expected) < 0.3,
                qPrintable(u"%1 s of %2 s"_s.arg(length).arg(expected)));
        }
    }

    void pictureBound_isMet_data()
    {
        addRows<Utf8, Utf8, Utf8>({ "source", "title", "size" },
            {
                { "landscape scaled", "landscape.mp4", "iPhone 4, 4s", "960\n540" },
                { "landscape fits, copied", "landscape.mp4", "MP4 HD 720", "1280\n720" },
                { "portrait scaled, made even", "portrait.mov", "MP4 Low Quality", "270\n480" },
            });
    }
    void pictureBound_isMet()
    {
        QFETCH(const QString, source);
        QFETCH(const QString, title);
        const auto constraints
            = videoConstraints(title, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s);
        QVERIFY(constraints);
        const QString result = path(u"bound.mp4"_s);
        QCOMPARE(convert(path(source), result, *constraints), QString());
        QTEST(Media::streamEntry(result, u"v:0"_s, u"width,height"_s), "size");
    }

    void manyRuns_leaveNothingBehind()
    {
        for (int i = 0; i < 6; ++i)
            runFour(i % 3 == 2);
        SerialQueue::waitForAll();
        const qsizetype descriptors = Processes::openDescriptors();
        const qsizetype threads = Processes::threads();
        const qint64 memory = Processes::residentMemory();
        for (int i = 0; i < (sanitized ? 10 : 50); ++i)
            runFour(i % 3 == 2);
        SerialQueue::waitForAll();
        QTRY_COMPARE(Processes::threads(), threads);
        QCOMPARE(Processes::openDescriptors(), descriptors);
        QCOMPARE(Processes::children(), QStringList());
        QCOMPARE(m_errors, 0);
        const qint64 growth = Processes::residentMemory() - memory;
        QVERIFY2(sanitized || growth < 2048, qPrintable(QString::number(growth)));
    }
};

QTEST_GUILESS_MAIN(TestRealTool)
#include "tst_realtool.moc"
