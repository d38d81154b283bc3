// SPDX-License-Identifier: MIT
#include "planning/ConversionDescriptor.h"
#include "planning/PlannedWork.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

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
    return videoConstraints(name, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s)
        .value();
}

/// The arguments as one line. A word that is empty or holds a space stands between quotation marks.
QString planned(const VideoConstraints &constraints, const QByteArray &info)
{
    QStringList words
        = conversionDescriptor(constraints.format)
              .ffmpegArguments(u"/a.mov"_s, u"/b"_s, JSON::parse(info), constraints.dimension);
    for (QString &word : words)
        if (word.isEmpty() || word.contains(u' '))
            word = u'\'' + word + u'\'';
    return words.join(u' ');
}

}

/// Entries of the menu, and arguments made from media informations.
class TestPlanning : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void streams_giveArguments_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &elements, const QString &expected) {
            QTest::addRow("%s | %s", name, elements.left(120).constData())
                << QString::fromUtf8(name) << elements << expected;
        };
        const QString tail = u" -strict experimental -f mp4"_s;
        const auto bound = [&tail](const QString &sides) {
            return u"-vf scale="_s + sides + u" -map 0:0 -vcodec libx264 -map 0:1 -acodec copy"_s
                + tail;
        };
        const QString mp4 = u"-map 0:0 -vcodec libx264 -map 0:1 -acodec copy"_s + tail;
        const QString mp3 = u" -acodec libmp3lame -ar 44100 -ac 2 -f "_s;
        const QString avi = u"-map 0:0 -vcodec libxvid -q:v 6 -map 0:1"_s + mp3 + u"avi"_s;

        // A source larger than every bound, and nothing in it to copy but the sound.
        const QByteArray aac = ',' + audio("aac", "48000", 2);
        const QByteArray huge = video("hevc", 8192, 4320) + aac;
        const std::pair<const char *, const char *> bounds[]{ { "iPhone 4, 4s", "960" },
            { "iPhone 5, 5s, 5c", "1136" }, { "iPhone 6, 6s", "1334" },
            { "iPhone 6s plus", "1920" }, { "iPad, iPad mini", "1024" },
            { "iPad Air, Air 2, iPad mini 2, 3, 4", "2048" }, { "iPad Pro", "2732" },
            { "AppleTV 1, 2", "1280" }, { "AppleTV 3", "1920" }, { "AppleTV 4", "1920" },
            { "MP4 Low Quality", "480" }, { "MP4 Medium Quality", "640" }, { "MP4 HD 720", "1280" },
            { "MP4 FullHD 1080", "1920" }, { "MP4 4k", "4096" } };
        for (const auto &[name, side] : bounds)
            row(name, huge, bound(QString::fromLatin1(side) + u":-2"_s));
        for (const char *unbound : { "iMac, MacBook", "Linux", "MP4" })
            row(unbound, huge, mp4);
        row("Windows", huge, avi);
        row("audio", huge, u"-f mp3"_s);
        row("GIF", huge, u"-vf scale=min(iw\\,600):-1 -pix_fmt rgb24 -r 10 -f gif"_s);
        row("AVI", huge, avi);
        row("FLV", huge, u"-map 0:0 -vcodec libx264 -map 0:1"_s + mp3 + u"flv"_s);
        row("MKV", huge, QString(mp4).replace(u"-f mp4"_s, u"-f matroska"_s));
        row("WebM", huge,
            u"-map 0:0 -vcodec libvpx -map 0:1 -acodec libvorbis -ar 48000 -ac 2 -f webm"_s);

        // The longer side is bound by the larger number.
        const QString copied = u"-map 0:0 -vcodec copy -map 0:1 -acodec copy"_s + tail;
        row("iPhone 4, 4s", video("h264", 1080, 1920) + aac, bound(u"-2:960"_s));
        row("iPhone 4, 4s", video("h264", 961, 2) + aac, bound(u"960:-2"_s));
        row("iPhone 4, 4s", video("h264", 2, 961) + aac, bound(u"-2:960"_s));
        row("iPhone 4, 4s", video("h264", 960, 960) + aac, copied);
        row("iPad, iPad mini", video("h264", 2000, 2000) + aac, bound(u"1024:-2"_s));

        // What is copied, and what becomes of the rest.
        row("mov", video("mpeg4", 640, 360) + aac, QString(copied).replace(u"mp4"_s, u"mov"_s));
        row("mov", video("h264", 640, 360) + ',' + audio("mp3", "44100", 1),
            u"-map 0:0 -vcodec libxvid -q:v 6 -map 0:1 -acodec aac -ar 44100 -ac 2 -strict experimental -f mov"_s);
        row("mpg", video("mpeg4", 640, 360) + ',' + audio("aac", "44100", 1),
            u"-map 0:0 -vcodec mpeg2video -q:v 6 -map 0:1 -acodec ac3 -ar 44100 -ac 1 -f vob"_s);
        row("mpg", video("mpeg2video", 720, 576) + ',' + audio("ac3", "48000", 6),
            u"-map 0:0 -vcodec copy -map 0:1 -acodec copy -f vob"_s);
        row("MKV", audio("mp3", "22050", 1) + ',' + video("mpeg4", 640, 360),
            u"-map 0:1 -vcodec libx264 -map 0:0 -acodec aac -ar 22050 -ac 2 -strict experimental -f matroska"_s);
        row("WebM", video("vp8", 1920, 1080) + R"(,{"codec_type":"audio","codec_name":"vorbis"})",
            u"-map 0:0 -vcodec copy -map 0:1 -acodec copy -f webm"_s);
        row("MP4", video("png", 600, 600) + ',' + video("h264", 1920, 1080),
            u"-map 0:0 -vcodec libx264"_s + tail);
        row("MP4", audio("aac", "48000", 2) + ',' + audio("ac3", "48000", 6),
            u"-map 0:0 -acodec copy"_s + tail);
        row("MP4", audio("ac3", "48000", 6), u"-map 0:0 -acodec aac -ar 48000 -ac 6"_s + tail);
        row("WebM", audio("opus", "1 -y /etc/passwd", 1),
            u"-map 0:0 -acodec libvorbis -ar '1 -y /etc/passwd' -ac 1 -f webm"_s);
        for (const char *rate : { "44100", "22050", "11025" })
            row("AVI", audio("aac", rate, 1),
                u"-map 0:0"_s + QString(mp3).replace(u"44100"_s, QString::fromLatin1(rate))
                    + u"avi"_s);
        for (const char *rate : { "8000", "32000", "022050", "" })
            row("AVI", audio("aac", rate, 6), u"-map 0:0"_s + mp3 + u"avi"_s);

        for (const char *none : { "", R"({"codec_type":"data"},{"codec_type":"subtitle"})",
                 R"({"codec_type":"Video"})", R"({"codec_type":["video"]})" })
            row("MP4", none, tail.sliced(1));

        // Values of other kinds than the tool prints.
        row("MP4", R"(null,7,"video",["video"],{},{"codec_type":"video"})",
            u"-map 0:5 -vcodec libx264"_s + tail);
        const QByteArray h264 = R"({"codec_type":"video","codec_name":"h264",)";
        row("MP4", h264 + R"("index":9})", u"-map 0:0 -vcodec copy"_s + tail);
        for (const char *size :
            { R"("width":4000})", R"("height":4000})", R"("width":"4000","height":20})",
                R"("width":true,"height":4000})", R"("width":1280.9,"height":20})",
                R"("width":1e300,"height":20})", R"("width":-4000,"height":-4000})" })
            row("MP4 HD 720", h264 + size, u"-map 0:0 -vcodec copy"_s + tail);
        row("MP4 HD 720", h264 + R"("width":9223372036854775807,"height":2})",
            u"-vf scale=1280:-2 -map 0:0 -vcodec libx264"_s + tail);
        for (const char *codec : { R"("codec_name":264})", R"("codec_name":""})",
                 R"("codec_name":"H264"})", R"("width":640})" })
            row("MP4", R"({"codec_type":"video",)" + QByteArray(codec),
                u"-map 0:0 -vcodec libx264"_s + tail);
        const QByteArray sound = R"({"codec_type":"audio",)";
        row("MP4", sound + R"("channels":-5})", u"-map 0:0 -acodec aac -ar '' -ac 2"_s + tail);
        row("MP4", sound + R"("sample_rate":22050,"channels":"6"})",
            u"-map 0:0 -acodec aac -ar 22050 -ac 6"_s + tail);
        row("WebM", sound + R"("sample_rate":{"a":1}})",
            u"-map 0:0 -acodec libvorbis -ar '' -ac 0 -f webm"_s);
    }

    void streams_giveArguments()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, elements);
        // The menu does not offer these two.
        const bool isOffered = name != u"mov" && name != u"mpg";
        VideoConstraints constraints = entry(isOffered ? name : u"MP4"_s);
        if (!isOffered)
            constraints.format = name == u"mov" ? ConversionFormat::mov : ConversionFormat::mpg;
        QTEST(planned(constraints, R"({"streams":[)" + elements + "]}"), "expected");
    }

    void work_agreesWithManyArguments()
    {
        QRandomGenerator random(25);
        const auto any = [&random](const QByteArrayList &values) {
            return values.at(random.bounded(int(values.size())));
        };
        int copies = 0;
        for (int count = 0; count < 200; ++count) {
            QByteArrayList streams;
            for (int stream = random.bounded(4); stream > 0; --stream)
                streams << any({ R"({"codec_type":"subtitle"})",
                    video(any({ "h264", "h264", "mpeg4", "vp8", "gif", "hevc", "mp3" }),
                        random.bounded(1, 1800), random.bounded(1, 1800)),
                    audio(any({ "aac", "aac", "mp3", "ac3", "vorbis", "h264" }), "48000", 2) });
            const QByteArray info = R"({"streams":[)" + streams.join(',') + "]}";
            for (const QString &name : entryNames()) {
                const QString words = planned(entry(name), info);
                // Where no codec is named the tool encodes by its own choice.
                const qsizetype copied = words.count(u"codec copy"_s);
                const bool expected = copied > 0 && copied == words.count(u"codec "_s);
                QVERIFY2(plannedWork(entry(name), JSON::parse(info)).isCopy() == expected,
                    (name.toUtf8() + ' ' + info).constData());
                copies += expected;
            }
        }
        QVERIFY(copies > 200);
        const JSON tall = JSON::parse(R"({"streams":[)" + video("h264", 1080, 1920) + "]}");
        QCOMPARE(plannedWork(entry(u"MP4 HD 720"_s), tall).scaledTo.value(), QSize(720, 1280));
    }

    void size_isSaidWhereItIsKnown()
    {
        const auto size = [](const char *name, const QByteArray &elements) {
            return expectedSize(entry(QString::fromUtf8(name)),
                JSON::parse(R"({"streams":[)" + elements
                    + R"(],"format":{"size":"4000","duration":"10.5"}})"))
                .value_or(-1);
        };
        const QByteArray both = video("h264", 640, 360) + ',' + audio("aac", "48000", 2);
        QCOMPARE(size("MKV", both), 4000);
        QCOMPARE(size("MKV", both + ',' + audio("aac", "48000", 2)), -1);
        QCOMPARE(size("audio", both), 168000);
        QCOMPARE(size("audio", audio("aac", "44100", 1)), 84000);
        QCOMPARE(size("audio", audio("aac", "48000", 6)), 168000);
        QCOMPARE(size("audio", audio("aac", "32000", 2)), -1);
        QCOMPARE(size("GIF", both), -1);
        const JSON ofUnknownLength = JSON::parse(R"({"streams":[)" + both + "]}");
        QVERIFY(!expectedSize(entry(u"audio"_s), ofUnknownLength));
    }

    void title_leadsToItsEntry()
    {
        // In a menu with other titles, the entries that they translate have no English one.
        QStringList names;
        for (const QString &title : { u"iPhone 6s plus"_s, u"Ton"_s, u"niedrig"_s, u"mittel"_s,
                 u"iPhone 6S Plus"_s, u"iPhone 6s plus "_s, u"audio"_s, u"MP4 Low Quality"_s,
                 u"MP4 Medium Quality"_s, u"MOV"_s, u""_s }) {
            const auto found = videoConstraints(title, u"Ton"_s, u"niedrig"_s, u"mittel"_s);
            names << (found ? found->destDevice : u"-"_s);
        }
        QCOMPARE(names.join(u'|'),
            u"iPhone 6s plus|audio|MP4 Low Quality|MP4 Medium Quality|-|-|-|-|-|-|-"_s);
    }

    void entries_followTheMenu()
    {
        const QStringList names = entryNames();
        QCOMPARE(names.size(), 25);
        for (const QString &name : names)
            QCOMPARE(entry(name).destDevice, name);
        QCOMPARE(entryNames(MenuGroup::Devices), names.first(13));
        QCOMPARE(entryNames(MenuGroup::Formats), names.mid(13, 7));
        QCOMPARE(entryNames(MenuGroup::Mp4Quality), names.last(5));
        QCOMPARE(entry(u"AppleTV 3"_s).quality, VideoQualityConstraints::unchanged);
        for (int quality = 1; quality <= 5; ++quality)
            QCOMPARE(hashValue(entry(names.at(19 + quality)).quality), quality);
    }
};

QTEST_GUILESS_MAIN(TestPlanning)
#include "tst_planning.moc"
