// SPDX-License-Identifier: MIT
#include "support/Pattern.h"
#include "support/Text.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class TestText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void length_differsFromCharacters_data();
    void length_differsFromCharacters();
    void max_capsForDisplay_data();
    void max_capsForDisplay();
    void number_isReadOrZero_data();
    void number_isReadOrZero();
    void bytes_becomeText_data();
    void bytes_becomeText();
    void pattern_findsGroup_data();
    void pattern_findsGroup();
    void expression_keepsItsOwnOptions();
    void heldMatch_givesGroups();
};

void TestText::length_differsFromCharacters_data()
{
    QTest::addColumn<qint64>("length");
    QTest::addColumn<qsizetype>("characters");

    const auto row = [](const char *text, qint64 length, qsizetype characters) {
        QTest::newRow(text) << length << characters;
    };
    row("", 0, 0);
    row("plain", 5, 5);
    row("a\r\nb\n\r", 6, 5);
    row("é", 1, 1);
    row("e\xCC\x81", 2, 1);
    row("é\r\n", 3, 2);
    row("🎬🎬", 4, 2);
    row("🇩🇪🇫🇷", 8, 2);
}

void TestText::length_differsFromCharacters()
{
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    QTEST(Text::length(text), "length");
    QTEST(Text::characterCount(text), "characters");
}

void TestText::max_capsForDisplay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("capped");

    const QString emoji = u"🎬"_s.repeated(20);
    const QString accents = u"e\u0301"_s.repeated(26);
    QTest::newRow("fits") << QString(25, u'a') << 25 << QString(25, u'a');
    QTest::newRow("one too many") << QString(26, u'a') << 25 << QString(24, u'a') + u'…';
    QTest::newRow("only the ellipsis") << u"ab"_s << 1 << u"…"_s;
    QTest::newRow("empty") << QString() << 1 << QString();
    QTest::newRow("fewer characters than units") << emoji << 25 << emoji;
    QTest::newRow("as many characters") << accents.first(50) << 25 << accents.first(50);
    QTest::newRow("characters stay whole") << accents << 25 << accents.first(48) + u'…';
}

void TestText::max_capsForDisplay()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QTEST(Text::max(text, count), "capped");
}

void TestText::number_isReadOrZero_data()
{
    QTest::addColumn<qint64>("number");

    const auto row = [](const char *text, qint64 number) { QTest::newRow(text) << number; };
    row("42", 42);
    row("-7", -7);
    row("+7", 7);
    row("007", 7);
    row("9223372036854775807", std::numeric_limits<qint64>::max());
    row("-9223372036854775808", std::numeric_limits<qint64>::min());
    for (const char *text : { "", "+", "-", "+-7", "--7", " 42", "42 ", "42.0", "4k", "4 2", "0x10",
             "9223372036854775808", "-9223372036854775809", "٣", "1,000" })
        row(text, 0);
}

void TestText::number_isReadOrZero()
{
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    QTEST(Text::asInt(text), "number");
    QTEST(Text::asInt64(text), "number");
}

void TestText::bytes_becomeText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << QByteArray("ok") << u"ok"_s;
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("UTF-8") << QByteArray("\xF0\x9F\x8E\xAC\xC3\xA9") << u"🎬é"_s;
    QTest::newRow("zero byte") << QByteArray("a\0b", 3) << QString(u"a\0b"_s);
    QTest::newRow("no UTF-8") << QByteArray("a\xFF") << QString();
    QTest::newRow("cut character") << QByteArray("a\xF0\x9F\x8E") << QString();
    QTest::newRow("overlong") << QByteArray("\xC0\x80") << QString();
}

void TestText::bytes_becomeText()
{
    QFETCH(QByteArray, bytes);
    QTEST(Text::stringValue(bytes), "text");
}

void TestText::pattern_findsGroup_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("found");

    const QString line = u"  Duration: 00:01:02.50, start: 0.000"_s;
    const QString duration = u"Duration: (.*?), start:"_s;
    QTest::newRow("group") << line << duration << 1 << u"00:01:02.50"_s;
    QTest::newRow("whole match") << line << duration << 0 << u"Duration: 00:01:02.50, start:"_s;
    QTest::newRow("first match") << u"a1 a2"_s << u"a(.)"_s << 1 << u"1"_s;
    QTest::newRow("invalid") << line << u"("_s << 0 << QString();
    QTest::newRow("no match") << line << u"x(.)"_s << 1 << QString();
    QTest::newRow("other letter case") << line << u"duration"_s << 0 << QString();
    QTest::newRow("group without part") << u"b"_s << u"(a)?b"_s << 1 << QString();
    QTest::newRow("line start") << u"x\nab"_s << u"^a(.)"_s << 1 << u"b"_s;
    QTest::newRow("line end") << u"ab\nx"_s << u"a(.)$"_s << 1 << u"b"_s;
    QTest::newRow("carriage return ends a line") << u"x\rab\rx"_s << u"^a(.)$"_s << 1 << u"b"_s;
    QTest::newRow("dot crosses lines") << u"a\n\r\u2028b"_s << u"a(.*)b"_s << 1 << u"\n\r\u2028"_s;
    // Four characters in seven units: only the first four units are searched.
    QTest::newRow("tail is not searched") << u"🎬🎬🎬b"_s << u"b"_s << 0 << QString();
    QTest::newRow("start of the tail") << u"ab🎬🎬🎬"_s << u"a(b)"_s << 1 << u"b"_s;
}

void TestText::pattern_findsGroup()
{
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    QFETCH(int, index);
    QTEST(Pattern::matchPattern(text, pattern, index), "found");
    const auto expression = Pattern::compiled(pattern, Pattern::lineOptions);
    QTEST(Pattern::matchRegex(text, expression, index), "found");
}

void TestText::expression_keepsItsOwnOptions()
{
    const QRegularExpression expression = Pattern::compiled(u"^b.*"_s);
    QCOMPARE(Pattern::matchRegex(u"a\nb"_s, expression, 0), QString());
    QCOMPARE(Pattern::matchRegex(u"bc\rd"_s, expression, 0), u"bc"_s);
}

void TestText::heldMatch_givesGroups()
{
    const QString text = u"-c 1"_s;
    const QRegularExpressionMatch match = QRegularExpression(u"(-[a-z])( x)? (\\d)"_s).match(text);
    QCOMPARE(Pattern::substringFromCheckingResult(match, 0), text);
    QCOMPARE(Pattern::substringFromCheckingResult(match, 2), QString());
    QCOMPARE(Pattern::substringFromCheckingResult(match, 3), u"1"_s);
}

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
