// SPDX-License-Identifier: MIT
#include "planning/ConversionDescriptor.h"
#include "planning/VideoConstraints.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

/// The catalogue: menu entries and formats.
class TestEntries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void title_leadsToItsEntry_data();
    void title_leadsToItsEntry();
    void names_areFoundInEnglish();
    void groups_followTheMenu();
    void rawValue_leadsToItsFormat_data();
    void rawValue_leadsToItsFormat();
    void descriptor_namesExtensionAndMuxer_data();
    void descriptor_namesExtensionAndMuxer();
    void hashValues_areOrdinals();
};

namespace {

const QString audio = u"Ton"_s;
const QString low = u"MP4 niedrige Qualität"_s;
const QString medium = u"MP4 mittlere Qualität"_s;

std::optional<VideoConstraints> entry(const QString &title)
{
    return videoConstraints(title, audio, low, medium);
}

}

void TestEntries::title_leadsToItsEntry_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("destDevice");
    QTest::newRow("device") << u"iPhone 6s plus"_s << u"iPhone 6s plus"_s;
    QTest::newRow("other capitals") << u"iPhone 6S Plus"_s << QString();
    QTest::newRow("space at the end") << u"iPhone 6s plus "_s << QString();
    QTest::newRow("translated audio") << audio << u"audio"_s;
    QTest::newRow("English audio in a translated menu") << u"audio"_s << QString();
    QTest::newRow("translated low quality") << low << u"MP4 Low Quality"_s;
    QTest::newRow("English low quality in a translated menu") << u"MP4 Low Quality"_s << QString();
    QTest::newRow("translated medium quality") << medium << u"MP4 Medium Quality"_s;
    QTest::newRow("English medium quality in a translated menu")
        << u"MP4 Medium Quality"_s << QString();
    QTest::newRow("a format without an entry") << u"MOV"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestEntries::title_leadsToItsEntry()
{
    QFETCH(QString, title);
    QFETCH(QString, destDevice);
    const auto found = entry(title);
    QCOMPARE(found.has_value(), !destDevice.isEmpty());
    if (found)
        QCOMPARE(found->destDevice, destDevice);
}

void TestEntries::names_areFoundInEnglish()
{
    const QStringList names = entryNames();
    QCOMPARE(names.size(), 25);
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 25);
    for (const QString &name : names) {
        const auto found
            = videoConstraints(name, u"audio"_s, u"MP4 Low Quality"_s, u"MP4 Medium Quality"_s);
        QVERIFY2(found, qPrintable(name));
        QCOMPARE(found->destDevice, name);
    }
    QCOMPARE(entry(low)->quality, VideoQualityConstraints::low);
    QCOMPARE(entry(medium)->quality, VideoQualityConstraints::medium);
    QCOMPARE(entry(u"MP4 HD 720"_s)->quality, VideoQualityConstraints::hd720);
    QCOMPARE(entry(u"MP4 FullHD 1080"_s)->quality, VideoQualityConstraints::fullHD1080);
    QCOMPARE(entry(u"MP4 4k"_s)->quality, VideoQualityConstraints::uhd4k);
    QCOMPARE(entry(u"AppleTV 3"_s)->quality, VideoQualityConstraints::unchanged);
    // The smaller numbers leave no trace in any argument.
    const auto lowBound = VideoDimensionsConstraints::maximum({ .width = 480, .height = 240 });
    QCOMPARE(entry(low)->dimension, lowBound);
}

void TestEntries::groups_followTheMenu()
{
    const QStringList devices = entryNames(MenuGroup::Devices);
    QCOMPARE(devices.size(), 13);
    QCOMPARE(devices.first(), u"iPhone 4, 4s"_s);
    QCOMPARE(devices.last(), u"Windows"_s);
    QCOMPARE(entryNames(MenuGroup::Formats),
        (QStringList{ u"audio"_s, u"GIF"_s, u"AVI"_s, u"FLV"_s, u"MKV"_s, u"WebM"_s, u"MP4"_s }));
    QCOMPARE(entryNames(MenuGroup::Mp4Quality).size(), 5);
}

void TestEntries::rawValue_leadsToItsFormat_data()
{
    QTest::addColumn<int>("raw");
    QTest::addColumn<bool>("exists");
    for (const int raw : { -1, 0, 10, std::numeric_limits<int>::max() })
        QTest::addRow("%d", raw) << raw << false;
    for (int raw = 1; raw <= 9; ++raw)
        QTest::addRow("%d", raw) << raw << true;
}

void TestEntries::rawValue_leadsToItsFormat()
{
    QFETCH(int, raw);
    QFETCH(bool, exists);
    const auto format = conversionFormat(raw);
    QCOMPARE(format.has_value(), exists);
    if (format)
        QCOMPARE(rawValue(*format), raw);
}

void TestEntries::descriptor_namesExtensionAndMuxer_data()
{
    QTest::addColumn<int>("raw");
    QTest::addColumn<QString>("ext");
    QTest::addColumn<QString>("muxer");
    QTest::newRow("flv") << 1 << u"flv"_s << u"flv"_s;
    QTest::newRow("mp4") << 2 << u"mp4"_s << u"mp4"_s;
    QTest::newRow("mkv") << 3 << u"mkv"_s << u"matroska"_s;
    QTest::newRow("mov") << 4 << u"mov"_s << u"mov"_s;
    QTest::newRow("avi") << 5 << u"avi"_s << u"avi"_s;
    QTest::newRow("mp3") << 6 << u"mp3"_s << u"mp3"_s;
    QTest::newRow("mpg") << 7 << u"mpg"_s << u"vob"_s;
    QTest::newRow("gif") << 8 << u"gif"_s << u"gif"_s;
    QTest::newRow("webm") << 9 << u"webm"_s << u"webm"_s;
}

void TestEntries::descriptor_namesExtensionAndMuxer()
{
    QFETCH(int, raw);
    QFETCH(QString, ext);
    QFETCH(QString, muxer);
    const ConversionDescriptor descriptor = conversionDescriptor(*conversionFormat(raw));
    QCOMPARE(descriptor.ext, ext);
    QCOMPARE(descriptor.format, muxer);
}

void TestEntries::hashValues_areOrdinals()
{
    QCOMPARE(hashValue(ConversionFormat::flv), 0);
    QCOMPARE(hashValue(ConversionFormat::webm), 8);
    QCOMPARE(hashValue(VideoQualityConstraints::unchanged), 0);
    QCOMPARE(hashValue(VideoQualityConstraints::uhd4k), 5);
}

QTEST_GUILESS_MAIN(TestEntries)
#include "tst_entries.moc"
