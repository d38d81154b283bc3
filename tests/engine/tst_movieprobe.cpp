// SPDX-License-Identifier: MIT
#include "engine/MovieProbe.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestMovieProbe : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void checked_refusesWhatIsIncomplete_data();
    void checked_refusesWhatIsIncomplete();
    void coverOffset_followsTheLength_data();
    void coverOffset_followsTheLength();
    void lengthBucket_hasExclusiveUpperBounds_data();
    void lengthBucket_hasExclusiveUpperBounds();
};

void TestMovieProbe::checked_refusesWhatIsIncomplete_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("refusal");
    const auto row = [](const char *name, const char *json, std::optional<ProbeRefusal> refusal) {
        QTest::newRow(name) << QByteArray(json) << (refusal ? static_cast<int>(*refusal) : -1);
    };
    row("one second", R"({"format":{"duration":"1.000000","size":"500"}})", std::nullopt);
    row("long", R"({"format":{"duration":"83.450000","size":"500"}})", std::nullopt);
    row("half a second", R"({"format":{"duration":"0.500000","size":"500"}})",
        ProbeRefusal::TooShort);
    row("no JSON", "moov atom not found", ProbeRefusal::NotMedia);
    row("nothing found", "{}", ProbeRefusal::NotMedia);
    row("no duration", R"({"format":{"size":"500"}})", ProbeRefusal::NoDuration);
    row("duration is a number", R"({"format":{"duration":83.4,"size":"500"}})",
        ProbeRefusal::NoDuration);
    row("duration is no number", R"({"format":{"duration":"N/A","size":"500"}})",
        ProbeRefusal::NoDuration);
    row("no size", R"({"format":{"duration":"83.4"}})", ProbeRefusal::NoSize);
    row("no size, too short", R"({"format":{"duration":"0.4"}})", ProbeRefusal::NoSize);
    row("size is a number", R"({"format":{"duration":"83.4","size":500}})", ProbeRefusal::NoSize);
    row("still growing", R"({"format":{"duration":"83.4","size":"499"}})",
        ProbeRefusal::SizeDiffers);
    row("size is no number", R"({"format":{"duration":"83.4","size":"5e2"}})",
        ProbeRefusal::SizeDiffers);
}

void TestMovieProbe::checked_refusesWhatIsIncomplete()
{
    QFETCH(QByteArray, json);
    const auto result = MovieProbe::checked(JSON::parse(json), 500);
    const auto *refusal = std::get_if<ProbeRefusal>(&result);
    QTEST(refusal ? static_cast<int>(*refusal) : -1, "refusal");
}

void TestMovieProbe::coverOffset_followsTheLength_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("offset");
    QTest::newRow("0 s") << qint64{ 0 } << u"00:00:00"_s;
    QTest::newRow("9 s") << qint64{ 9 } << u"00:00:02"_s;
    QTest::newRow("10 s") << qint64{ 10 } << u"00:00:20"_s;
    QTest::newRow("59 s") << qint64{ 59 } << u"00:00:20"_s;
    QTest::newRow("60 s") << qint64{ 60 } << u"00:00:40"_s;
    QTest::newRow("59 min 59 s") << qint64{ 3599 } << u"00:00:40"_s;
    QTest::newRow("1 h") << qint64{ 3600 } << u"00:40:00"_s;
}

void TestMovieProbe::coverOffset_followsTheLength()
{
    QFETCH(qint64, seconds);
    QTEST(MovieProbe::coverOffset(DurationInfo(seconds)), "offset");
}

void TestMovieProbe::lengthBucket_hasExclusiveUpperBounds_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("label");
    QTest::newRow("59 s") << qint64{ 59 } << u"0-1"_s;
    QTest::newRow("60 s") << qint64{ 60 } << u"1-5"_s;
    QTest::newRow("299 s") << qint64{ 299 } << u"1-5"_s;
    QTest::newRow("300 s") << qint64{ 300 } << u"5-10"_s;
    QTest::newRow("600 s") << qint64{ 600 } << u"10-20"_s;
    QTest::newRow("2399 s") << qint64{ 2399 } << u"20-40"_s;
    QTest::newRow("2400 s") << qint64{ 2400 } << u">40"_s;
    QTest::newRow("negative") << qint64{ -120 } << u">40"_s;
}

void TestMovieProbe::lengthBucket_hasExclusiveUpperBounds()
{
    QFETCH(qint64, seconds);
    QTEST(MovieProbe::lengthBucket(seconds), "label");
}

QTEST_GUILESS_MAIN(TestMovieProbe)
#include "tst_movieprobe.moc"
