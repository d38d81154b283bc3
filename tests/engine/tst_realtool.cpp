// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "planning/ConversionDescriptor.h"
#include "support/Console.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Rows.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// Videos that the real tool makes, examined by the real one.
class TestRealTool : public QObject {
    Q_OBJECT

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    static VideoConstraints constraints(ConversionFormat format)
    {
        return { VideoDimensionsConstraints::unlimited(), VideoQualityConstraints::unchanged,
            format, {} };
    }

    // Probes and converts; gives the message of a failure, empty for success.
    static QString convert(
        const QString &source, const QString &dest, const VideoConstraints &entry)
    {
        std::shared_ptr<Progress> progress;
        QString failure;
        const auto fail = [&failure](const std::optional<QString> &errmsg) {
            failure = errmsg.value_or(u"failed"_s);
        };
        FFMPEG::collectMovieInfo(
            source, [&] { failure = u"not supported"_s; },
            [&](const JSON &info, const QImage &, const QString &) {
                progress = FFMPEG::convertFile(source, dest, entry, info, fail);
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

    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([](const QString &) {});
        Media::video(path(u"small.mp4"_s), 4, u"320x180"_s);
        Media::video(path(u"mono.mkv"_s), 3, u"320x240"_s,
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
        const QString result = path(u"out."_s + conversionDescriptor(format).ext);
        for (const QString &source : { path(u"small.mp4"_s), path(u"mono.mkv"_s) }) {
            QCOMPARE(convert(source, result, constraints(format)), QString());
            QTEST(Media::formatEntry(result, u"format_name"_s), "container");
            QTEST(Media::streamEntry(result, u"v:0"_s, u"codec_name"_s), "video");
            QTEST(Media::streamEntry(result, u"a:0"_s, u"codec_name"_s), "audio");
            const double length = Media::formatEntry(result, u"duration"_s).toDouble();
            const double expected = Media::formatEntry(source, u"duration"_s).toDouble();
            QVERIFY2(qAbs(length - expected) < 0.3,
                qPrintable(u"%1 s of %2 s"_s.arg(length).arg(expected)));
        }
    }
};

QTEST_GUILESS_MAIN(TestRealTool)
#include "tst_realtool.moc"
