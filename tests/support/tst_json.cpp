// SPDX-License-Identifier: MIT
#include "support/Dictionary.h"
#include "support/JSON.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using Number = std::optional<qint64>;
using String = std::optional<QString>;

class TestJson : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void value_readsLeniently_data();
    void value_readsLeniently();
    void bytesThatAreNoJson_areNull_data();
    void bytesThatAreNoJson_areNull();
    void members_areReachedOrNull();
    void dictionaries_mergeToTheRight();
};

void TestJson::value_readsLeniently_data()
{
    QTest::addColumn<String>("string");
    QTest::addColumn<QString>("stringValue");
    QTest::addColumn<Number>("integer");
    QTest::addColumn<qint64>("intValue");

    const auto row = [](const char *json, const String &string, const QString &stringValue,
                         const Number &integer, qint64 intValue) {
        QTest::newRow(json) << string << stringValue << integer << intValue;
    };
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    row(R"("h264")", u"h264"_s, u"h264"_s, {}, 0);
    row(R"("48000")", u"48000"_s, u"48000"_s, {}, 48000);
    row(R"("-12.9 kb")", u"-12.9 kb"_s, u"-12.9 kb"_s, {}, -12);
    row(R"(" 7")", u" 7"_s, u" 7"_s, {}, 7);
    row(R"("1e3")", u"1e3"_s, u"1e3"_s, {}, 1000);
    row(R"("9223372036854775807")", u"9223372036854775807"_s, u"9223372036854775807"_s, {},
        largest);
    row(R"("1e99")", u"1e99"_s, u"1e99"_s, {}, 0);
    row(R"("")", u""_s, {}, {}, 0);
    row("0", {}, u"0"_s, 0, 0);
    row("1920", {}, u"1920"_s, 1920, 1920);
    row("29.97", {}, u"29.97"_s, 29, 29);
    row("-1.9", {}, u"-1.9"_s, -1, -1);
    row("9007199254740993", {}, u"9007199254740993"_s, 9007199254740993, 9007199254740993);
    row("9223372036854775807", {}, u"9223372036854775807"_s, largest, largest);
    row("1e300", {}, u"1e+300"_s, {}, 0);
    row("true", {}, u"true"_s, {}, 1);
    row("false", {}, u"false"_s, {}, 0);
    row("null", {}, {}, {}, 0);
    row("[1]", {}, {}, {}, 0);
    row(R"({"a":1})", {}, {}, {}, 0);
}

void TestJson::value_readsLeniently()
{
    const JSON json = JSON::parse("[" + QByteArray(QTest::currentDataTag()) + "]").array().at(0);
    QTEST(json.string(), "string");
    QTEST(json.stringValue(), "stringValue");
    QTEST(json.integer(), "integer");
    QTEST(json.intValue(), "intValue");
}

void TestJson::bytesThatAreNoJson_areNull_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("no such file");
    QTest::newRow("cut off") << QByteArray(R"({"streams":[{"codec)");
    QTest::newRow("something behind") << QByteArray("{} x");
    QTest::newRow("endless nesting") << QByteArray(1000000, '[');
}

void TestJson::bytesThatAreNoJson_areNull()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(JSON::parse(bytes), JSON());
}

void TestJson::members_areReachedOrNull()
{
    const JSON json = JSON::parse(R"({"streams":[{"tags":{"rotate":"90"}},7],"é":"è"})");
    QCOMPARE(json[u"streams"_s].array().size(), std::size_t{ 2 });
    QCOMPARE(json[u"streams"_s].array().at(0)[u"tags"_s][u"rotate"_s].intValue(), 90);
    QCOMPARE(json[u"é"_s].string(), String(u"è"_s));
    QCOMPARE(json[u"none"_s], JSON());
    QCOMPARE(json[u"none"_s][u"deeper"_s][u"still"_s], JSON());
    QCOMPARE(json[u"streams"_s][u"tags"_s], JSON());
    QVERIFY(json[u"é"_s].array().empty());
    QVERIFY(json.array().empty());
}

void TestJson::dictionaries_mergeToTheRight()
{
    using Map = QMap<QString, int>;
    const Map left{ { u"a"_s, 1 }, { u"b"_s, 2 } };
    QCOMPARE(left + Map({ { u"b"_s, 3 }, { u"c"_s, 4 } }),
        Map({ { u"a"_s, 1 }, { u"b"_s, 3 }, { u"c"_s, 4 } }));
    QCOMPARE(left + std::nullopt, left);
    QCOMPARE(left, Map({ { u"a"_s, 1 }, { u"b"_s, 2 } }));
}

QTEST_GUILESS_MAIN(TestJson)
#include "tst_json.moc"
