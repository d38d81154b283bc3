// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "planning/ConversionDescriptor.h"
#include "tests/fixtures/Media.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// Every format is really made by the real tool, and the result examined by the real one.
class TestFormats : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFormat_isReallyMade_data();
    void everyFormat_isReallyMade();
    void pictureBound_isMet_data();
    void pictureBound_isMet();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    // Probes and converts; gives the message of a failure, empty for success.
    QString convert(
        const QString &source, const QString &dest, const VideoConstraints &constraints);

    QTemporaryDir m_folder;
};

QString TestFormats::convert(
    const QString &source, const QString &dest, const VideoConstraints &constraints)
{
    std::shared_ptr<Progress> progress;
    QString failure;
    FFMPEG::collectMovieInfo(
        source, [&] { failure = u"not supported"_s; },
        [&](const JSON &info, const QImage &, const QString &) {
            progress = FFMPEG::convertFile(
                source, dest, constraints, info, [&](const std::optional<QString> &errmsg) {
                    failure = errmsg.value_or(u"failed"_s);
                });
        });
    [&] {
        QTRY_VERIFY_WITH_TIMEOUT((progress && progress->isEnded()) || !failure.isEmpty(), 60'000);
    }();
    QCoreApplication::processEvents();
    if (failure.isEmpty() && progress->completedUnitCount() != progress->totalUnitCount())
        failure = u"not at its end"_s;
    return failure.isEmpty() ? failure : failure + QString::fromUtf8(progress->toolOutput());
}

void TestFormats::initTestCase()
{
    Media::film(path(u"small.mp4"_s), 4, u"320x180"_s);
    Media::film(path(u"landscape.mp4"_s), 2, u"1280x720"_s);
    Media::film(path(u"portrait.mov"_s), 2, u"360x640"_s);
    Media::film(path(u"mono.mkv"_s), 3, u"320x240"_s,
        { u"-c:v"_s, u"mpeg4"_s, u"-c:a"_s, u"libmp3lame"_s, u"-ar"_s, u"44100"_s, u"-ac"_s,
            u"1"_s });
}

void TestFormats::everyFormat_isReallyMade_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("rawFormat");
    QTest::addColumn<QString>("container");
    QTest::addColumn<QString>("video");
    QTest::addColumn<QString>("audio");
    struct Row {
        int rawFormat;
        const char *container;
        const char *video;
        const char *audio;
    };
    constexpr std::array rows{
        Row{ 1, "flv", "h264", "mp3" },
        Row{ 2, "mov,mp4,m4a,3gp,3g2,mj2", "h264", "aac" },
        Row{ 3, "matroska,webm", "h264", "aac" },
        Row{ 4, "mov,mp4,m4a,3gp,3g2,mj2", "mpeg4", "aac" },
        Row{ 5, "avi", "mpeg4", "mp3" },
        Row{ 6, "mp3", "", "mp3" },
        Row{ 7, "mpeg", "mpeg2video", "ac3" },
        Row{ 8, "gif", "gif", "" },
        Row{ 9, "matroska,webm", "vp8", "vorbis" },
    };
    for (const char *source : { "small.mp4", "mono.mkv" }) {
        for (const Row &row : rows)
            QTest::addRow("%s to format %d", source, row.rawFormat)
                << QString::fromUtf8(source) << row.rawFormat << QString::fromUtf8(row.container)
                << QString::fromUtf8(row.video) << QString::fromUtf8(row.audio);
    }
}

void TestFormats::everyFormat_isReallyMade()
{
    QFETCH(QString, source);
    QFETCH(int, rawFormat);
    const auto format = static_cast<ConversionFormat>(rawFormat);
    const VideoConstraints constraints{ VideoDimensionsConstraints::unlimited(),
        VideoQualityConstraints::unchanged, format, {} };
    const QString result = path(u"out."_s + conversionDescriptor(format).ext);
    QCOMPARE(convert(path(source), result, constraints), QString());
    QTEST(Media::formatEntry(result, u"format_name"_s), "container");
    QTEST(Media::streamEntry(result, u"v:0"_s, u"codec_name"_s), "video");
    QTEST(Media::streamEntry(result, u"a:0"_s, u"codec_name"_s), "audio");
    const double length = Media::formatEntry(result, u"duration"_s).toDouble();
    const double expected = Media::formatEntry(path(source), u"duration"_s).toDouble();
    QVERIFY2(
        qAbs(length - expected) < 0.3, qPrintable(u"%1 s of %2 s"_s.arg(length).arg(expected)));
}

void TestFormats::pictureBound_isMet_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("size");
    QTest::newRow("landscape scaled") << u"landscape.mp4"_s << u"iPhone 4, 4s"_s << u"960\n540"_s;
    QTest::newRow("landscape fits, copied")
        << u"landscape.mp4"_s << u"MP4 HD 720"_s << u"1280\n720"_s;
    QTest::newRow("portrait scaled, made even")
        << u"portrait.mov"_s << u"MP4 Low Quality"_s << u"270\n480"_s;
}

void TestFormats::pictureBound_isMet()
{
    QFETCH(QString, source);
    QFETCH(QString, title);
    const auto constraints
        = videoConstraints(title, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s);
    QVERIFY(constraints);
    const QString result = path(u"bound.mp4"_s);
    QCOMPARE(convert(path(source), result, *constraints), QString());
    QTEST(Media::streamEntry(result, u"v:0"_s, u"width,height"_s), "size");
}

QTEST_GUILESS_MAIN(TestFormats)
#include "tst_formats.moc"
