// SPDX-License-Identifier: MIT
#include "planning/ConversionDescriptor.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Streams chosen and arguments made from media informations. A list of arguments is written as
/// words with spaces between.
class TestArguments : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entry_givesArguments_data();
    void entry_givesArguments();
    void bound_scalesTheLongerSide_data();
    void bound_scalesTheLongerSide();
    void format_givesArguments_data();
    void format_givesArguments();
    void strangeInformation_givesArguments_data();
    void strangeInformation_givesArguments();
    void textFromOutside_staysOneArgument();
    void streams_areTheFirstOfTheirKind_data();
    void streams_areTheFirstOfTheirKind();
    void paths_haveNoInfluence();
};

namespace {

JSON streams(const QByteArray &elements) { return JSON::parse("{\"streams\":[" + elements + "]}"); }

QByteArray video(const QByteArray &codec, int width, int height)
{
    return R"({"codec_type":"video","codec_name":")" + codec + R"(","width":)"
        + QByteArray::number(width) + R"(,"height":)" + QByteArray::number(height) + '}';
}

QByteArray audio(const QByteArray &codec, const QByteArray &rate, int channels)
{
    return R"({"codec_type":"audio","codec_name":")" + codec + R"(","sample_rate":")" + rate
        + R"(","channels":)" + QByteArray::number(channels) + '}';
}

VideoConstraints entry(const QString &name)
{
    return *videoConstraints(name, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s);
}

QStringList planned(const VideoConstraints &constraints, const JSON &info)
{
    return conversionDescriptor(constraints.format)
        .ffmpegArguments(QString(), QString(), info, constraints.dimension);
}

// An empty word is written as ''.
QStringList words(const QString &text)
{
    QStringList list = text.split(u' ');
    list.replaceInStrings(u"''"_s, QString());
    return list;
}

}

void TestArguments::entry_givesArguments_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("elements");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &elements, const QString &expected) {
        QTest::addRow("%s | %s", name, elements.left(60).constData())
            << QString::fromUtf8(name) << elements << expected;
    };
    // A source larger than every bound, and nothing in it to copy but the sound.
    const QByteArray huge = video("hevc", 8192, 4320) + ',' + audio("aac", "48000", 2);
    const QString mp4
        = u"-map 0:0 -vcodec libx264 -map 0:1 -acodec copy -strict experimental -f mp4"_s;
    const QString avi
        = u"-map 0:0 -vcodec libxvid -q:v 6 -map 0:1 -acodec libmp3lame -ar 44100 -ac 2 -f avi"_s;
    const QString gif = u"-vf scale=min(iw\\,600):-1 -pix_fmt rgb24 -r 10 -f gif"_s;
    const auto bound = [&mp4](int side) { return u"-vf scale=%1:-2 "_s.arg(side) + mp4; };
    row("iPhone 4, 4s", huge, bound(960));
    row("iPhone 5, 5s, 5c", huge, bound(1136));
    row("iPhone 6, 6s", huge, bound(1334));
    row("iPhone 6s plus", huge, bound(1920));
    row("iPad, iPad mini", huge, bound(1024));
    row("iPad Air, Air 2, iPad mini 2, 3, 4", huge, bound(2048));
    row("iPad Pro", huge, bound(2732));
    row("AppleTV 1, 2", huge, bound(1280));
    row("AppleTV 3", huge, bound(1920));
    row("AppleTV 4", huge, bound(1920));
    row("iMac, MacBook", huge, mp4);
    row("Linux", huge, mp4);
    row("Windows", huge, avi);
    row("audio", huge, u"-f mp3"_s);
    row("GIF", huge, gif);
    row("AVI", huge, avi);
    row("FLV", huge,
        u"-map 0:0 -vcodec libx264 -map 0:1 -acodec libmp3lame -ar 44100 -ac 2 -f flv"_s);
    row("MKV", huge,
        u"-map 0:0 -vcodec libx264 -map 0:1 -acodec copy -strict experimental -f matroska"_s);
    row("WebM", huge,
        u"-map 0:0 -vcodec libvpx -map 0:1 -acodec libvorbis -ar 48000 -ac 2 -f webm"_s);
    row("MP4", huge, mp4);
    row("MP4 Low Quality", huge, bound(480));
    row("MP4 Medium Quality", huge, bound(640));
    row("MP4 HD 720", huge, bound(1280));
    row("MP4 FullHD 1080", huge, bound(1920));
    row("MP4 4k", huge, bound(4096));

    const QByteArray fullHd = video("h264", 1920, 1080) + ',' + audio("aac", "48000", 2);
    row("iPhone 4, 4s", fullHd, bound(960));
    row("MP4", fullHd,
        u"-map 0:0 -vcodec copy -map 0:1 -acodec copy -strict experimental -f mp4"_s);
    row("MP4 Medium Quality", video("h264", 1080, 1920),
        u"-vf scale=-2:640 -map 0:0 -vcodec libx264 -strict experimental -f mp4"_s);
    row("AVI", video("h264", 1280, 720) + ',' + audio("aac", "48000", 6), avi);
    row("MKV", audio("mp3", "22050", 1) + ',' + video("mpeg4", 640, 360),
        u"-map 0:1 -vcodec libx264 -map 0:0 -acodec aac -ar 22050 -ac 2 -strict experimental -f matroska"_s);
    row("WebM", video("vp8", 1920, 1080) + R"(,{"codec_type":"audio","codec_name":"vorbis"})",
        u"-map 0:0 -vcodec copy -map 0:1 -acodec copy -f webm"_s);
    row("audio", "", u"-f mp3"_s);
    row("GIF", "", gif);
    row("MP4", "", u"-strict experimental -f mp4"_s);
    row("MP4", R"({"codec_type":"data"},{"codec_type":"subtitle"})",
        u"-strict experimental -f mp4"_s);
    row("WebM", audio("opus", "48000", 1), u"-map 0:0 -acodec libvorbis -ar 48000 -ac 1 -f webm"_s);
    row("MP4", video("png", 600, 600) + ',' + video("h264", 1920, 1080),
        u"-map 0:0 -vcodec libx264 -strict experimental -f mp4"_s);
}

void TestArguments::entry_givesArguments()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, elements);
    QFETCH(QString, expected);
    QCOMPARE(planned(entry(name), streams(elements)), words(expected));
}

void TestArguments::bound_scalesTheLongerSide_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("scale");
    QTest::newRow("portrait") << u"iPhone 4, 4s"_s << 1080 << 1920 << u"scale=-2:960"_s;
    QTest::newRow("square") << u"iPad, iPad mini"_s << 2000 << 2000 << u"scale=1024:-2"_s;
    QTest::newRow("one too wide") << u"iPhone 4, 4s"_s << 961 << 2 << u"scale=960:-2"_s;
    QTest::newRow("one too high") << u"iPhone 4, 4s"_s << 2 << 961 << u"scale=-2:960"_s;
    QTest::newRow("as large as the bound") << u"iPhone 4, 4s"_s << 960 << 540 << QString();
    QTest::newRow("square below the larger number") << u"iPhone 4, 4s"_s << 900 << 900 << QString();
    QTest::newRow("portrait below the larger number")
        << u"MP4 HD 720"_s << 720 << 1280 << QString();
    QTest::newRow("no bound") << u"Linux"_s << 16384 << 16384 << QString();
}

void TestArguments::bound_scalesTheLongerSide()
{
    QFETCH(QString, name);
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(QString, scale);
    const QString tail = u"-strict experimental -f mp4"_s;
    const QStringList expected
        = words(scale.isEmpty() ? u"-map 0:0 -vcodec copy "_s + tail
                                : u"-vf "_s + scale + u" -map 0:0 -vcodec libx264 "_s + tail);
    QCOMPARE(planned(entry(name), streams(video("h264", width, height))), expected);
}

void TestArguments::format_givesArguments_data()
{
    QTest::addColumn<ConversionFormat>("format");
    QTest::addColumn<QByteArray>("elements");
    QTest::addColumn<QString>("expected");
    using enum ConversionFormat;
    const QByteArray picture = video("mpeg4", 640, 360) + ',';
    QTest::newRow("mov copies, without encoder options")
        << mov << picture + audio("aac", "44100", 1)
        << u"-map 0:0 -vcodec copy -map 0:1 -acodec copy -strict experimental -f mov"_s;
    QTest::newRow("mov encodes")
        << mov << video("h264", 640, 360) + ',' + audio("mp3", "44100", 1)
        << u"-map 0:0 -vcodec libxvid -q:v 6 -map 0:1 -acodec aac -ar 44100 -ac 2 -strict experimental -f mov"_s;
    QTest::newRow("mpg encodes, mono stays")
        << mpg << picture + audio("aac", "44100", 1)
        << u"-map 0:0 -vcodec mpeg2video -q:v 6 -map 0:1 -acodec ac3 -ar 44100 -ac 1 -f vob"_s;
    QTest::newRow("mpg copies") << mpg
                                << video("mpeg2video", 720, 576) + ',' + audio("ac3", "48000", 6)
                                << u"-map 0:0 -vcodec copy -map 0:1 -acodec copy -f vob"_s;
    QTest::newRow("six channels stay")
        << mp4 << audio("ac3", "48000", 6)
        << u"-map 0:0 -acodec aac -ar 48000 -ac 6 -strict experimental -f mp4"_s;
    QTest::newRow("a codec name in capitals is another")
        << mp4 << video("H264", 640, 360)
        << u"-map 0:0 -vcodec libx264 -strict experimental -f mp4"_s;
    const auto avi22 = [](const char *rate) {
        return u"-map 0:0 -acodec libmp3lame -ar "_s + QString::fromLatin1(rate)
            + u" -ac 2 -f avi"_s;
    };
    QTest::newRow("8000 Hz") << avi << audio("aac", "8000", 1) << avi22("44100");
    QTest::newRow("11025 Hz") << avi << audio("aac", "11025", 1) << avi22("11025");
    QTest::newRow("22050 Hz") << avi << audio("aac", "22050", 1) << avi22("22050");
    QTest::newRow("32000 Hz") << avi << audio("aac", "32000", 1) << avi22("44100");
    QTest::newRow("a rate is text") << avi << audio("aac", "022050", 1) << avi22("44100");
}

void TestArguments::format_givesArguments()
{
    QFETCH(ConversionFormat, format);
    QFETCH(QByteArray, elements);
    QFETCH(QString, expected);
    QCOMPARE(conversionDescriptor(format).ffmpegArguments(
                 QString(), QString(), streams(elements), VideoDimensionsConstraints::unlimited()),
        words(expected));
}

void TestArguments::strangeInformation_givesArguments_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");
    const auto row
        = [](const char *tag, const char *name, const QByteArray &json, const QString &expected) {
              QTest::newRow(tag) << QString::fromLatin1(name) << json << expected;
          };
    const auto one = [](const QByteArray &stream) { return "{\"streams\":[{" + stream + "}]}"; };
    const QString tail = u"-strict experimental -f mp4"_s;
    const QString encoded = u"-map 0:0 -vcodec libx264 "_s + tail;
    const QString copied = u"-map 0:0 -vcodec copy "_s + tail;
    const QString scaled = u"-vf scale=1280:-2 "_s + encoded;
    row("no JSON", "MP4", "not JSON", tail);
    row("an array", "MP4", R"([{"codec_type":"video"}])", tail);
    row("streams is an object", "MP4", R"({"streams":{"0":{"codec_type":"video"}}})", tail);
    row("streams is text", "MP4", R"({"streams":"video"})", tail);
    row("elements of other types count as places", "MP4",
        R"({"streams":[null,7,"video",["video"],{},{"codec_type":"video","codec_name":"h264"}]})",
        u"-map 0:5 -vcodec copy "_s + tail);
    row("own index is not read", "MP4",
        one(R"("index":9,"codec_type":"video","codec_name":"h264")"), copied);
    row("kind in capitals", "MP4", one(R"("codec_type":"Video","codec_name":"h264")"), tail);
    row("kind is a list", "MP4", one(R"("codec_type":["video"],"codec_name":"h264")"), tail);
    row("video without a name", "MP4", one(R"("codec_type":"video","width":640,"height":360)"),
        encoded);
    row("video name is a number", "MP4", one(R"("codec_type":"video","codec_name":264)"), encoded);
    row("video name is empty", "MP4", one(R"("codec_type":"video","codec_name":"")"), encoded);
    const QByteArray h264 = R"("codec_type":"video","codec_name":"h264",)";
    row("no height", "MP4 HD 720", one(h264 + R"("width":4000)"), copied);
    row("no width", "MP4 HD 720", one(h264 + R"("height":4000)"), copied);
    row("width as text", "MP4 HD 720", one(h264 + R"("width":"4000","height":20)"), copied);
    row("width as flag", "MP4 HD 720", one(h264 + R"("width":true,"height":4000)"), copied);
    row("width with a fraction", "MP4 HD 720", one(h264 + R"("width":1280.9,"height":20)"), copied);
    row("width beyond 64 bits", "MP4 HD 720", one(h264 + R"("width":1e300,"height":20)"), copied);
    row("width at the end of 64 bits", "MP4 HD 720",
        one(h264 + R"("width":9223372036854775807,"height":20)"), scaled);
    row("negative sizes", "MP4 HD 720", one(h264 + R"("width":-4000,"height":-4000)"), copied);
    const auto sound
        = [&tail](const QString &rest) { return u"-map 0:0 -acodec aac "_s + rest + u' ' + tail; };
    row("sound without anything", "MP4", one(R"("codec_type":"audio")"), sound(u"-ar '' -ac 2"_s));
    row("sound without anything, as MP3", "FLV", one(R"("codec_type":"audio")"),
        u"-map 0:0 -acodec libmp3lame -ar 44100 -ac 2 -f flv"_s);
    row("sound without anything, as Vorbis", "WebM", one(R"("codec_type":"audio")"),
        u"-map 0:0 -acodec libvorbis -ar '' -ac 0 -f webm"_s);
    row("rate is a number", "MP4", one(R"("codec_type":"audio","sample_rate":48000,"channels":2)"),
        sound(u"-ar 48000 -ac 2"_s));
    row("rate is a number that MP3 knows", "AVI",
        one(R"("codec_type":"audio","sample_rate":22050,"channels":2)"),
        u"-map 0:0 -acodec libmp3lame -ar 22050 -ac 2 -f avi"_s);
    row("rate is an object", "MP4",
        one(R"("codec_type":"audio","sample_rate":{"a":1},"channels":2)"),
        sound(u"-ar '' -ac 2"_s));
    row("channels as text", "MP4",
        one(R"("codec_type":"audio","sample_rate":"48000","channels":"6")"),
        sound(u"-ar 48000 -ac 6"_s));
    row("negative channels", "MP4",
        one(R"("codec_type":"audio","sample_rate":"48000","channels":-5)"),
        sound(u"-ar 48000 -ac 2"_s));
}

void TestArguments::strangeInformation_givesArguments()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    QCOMPARE(planned(entry(name), JSON::parse(json)), words(expected));
}

void TestArguments::textFromOutside_staysOneArgument()
{
    const JSON info = streams(audio("opus", "1 -y /etc/passwd", 2));
    QStringList expected = words(u"-map 0:0 -acodec libvorbis -ar RATE -ac 2 -f webm"_s);
    expected.replace(expected.indexOf(u"RATE"_s), u"1 -y /etc/passwd"_s);
    QCOMPARE(planned(entry(u"WebM"_s), info), expected);
}

void TestArguments::streams_areTheFirstOfTheirKind_data()
{
    QTest::addColumn<QStringList>("kinds");
    QTest::addColumn<ConversionFormat>("format");
    QTest::addColumn<int>("videoIndex");
    QTest::addColumn<int>("audioIndex");
    using enum ConversionFormat;
    const QStringList usual{ u"video"_s, u"audio"_s, u"audio"_s };
    QTest::newRow("two sounds") << usual << mp4 << 0 << 1;
    QTest::newRow("mp3 leaves the choice to the tool") << usual << mp3 << -1 << -1;
    QTest::newRow("gif leaves the choice to the tool") << usual << gif << -1 << -1;
    QTest::newRow("sound first") << QStringList{ u"audio"_s, u"video"_s } << webm << 1 << 0;
    QTest::newRow("other kinds only")
        << QStringList{ u"data"_s, u"subtitle"_s, u"attachment"_s } << mkv << -1 << -1;
    QTest::newRow("none") << QStringList() << mkv << -1 << -1;
}

void TestArguments::streams_areTheFirstOfTheirKind()
{
    QFETCH(QStringList, kinds);
    QFETCH(ConversionFormat, format);
    QFETCH(int, videoIndex);
    QFETCH(int, audioIndex);
    QByteArrayList elements;
    for (const QString &kind : kinds)
        elements << R"({"codec_type":")" + kind.toUtf8() + R"(","place":)"
                + QByteArray::number(elements.size()) + '}';
    const JSON info = streams(elements.join(','));
    const ConversionDescriptor descriptor = conversionDescriptor(format);
    const auto check = [](const std::optional<ChosenStream> &stream, int index) {
        QCOMPARE(stream ? stream->index : -1, index);
        if (stream)
            QCOMPARE(stream->item[u"place"_s].intValue(), index);
    };
    check(descriptor.videoStream(info), videoIndex);
    check(descriptor.audioStream(info), audioIndex);
}

void TestArguments::paths_haveNoInfluence()
{
    const JSON info = streams(video("h264", 1920, 1080));
    const VideoConstraints mp4 = entry(u"MP4"_s);
    QCOMPARE(conversionDescriptor(mp4.format)
                 .ffmpegArguments(u"/a.mov"_s, u"/b.webm"_s, info, mp4.dimension),
        planned(mp4, info));
}

QTEST_GUILESS_MAIN(TestArguments)
#include "tst_arguments.moc"
