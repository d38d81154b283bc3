// SPDX-License-Identifier: MIT
#include "engine/DurationScanner.h"
#include "engine/ToolOutput.h"
#include "support/Pattern.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

class TestToolOutput : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void getFFMpegDuration_readsHoursMinutesSeconds_data();
    void getFFMpegDuration_readsHoursMinutesSeconds();
    void lastReportedPosition_takesTheLastReport_data();
    void lastReportedPosition_takesTheLastReport();
    void decodedBlock_losesBrokenLinesOnly_data();
    void decodedBlock_losesBrokenLinesOnly();
    void scanner_agreesWithASearchOfTheWholeText();
    void scanner_keepsItsPaceOnLongOutput();
};

void TestToolOutput::getFFMpegDuration_readsHoursMinutesSeconds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("seconds");
    constexpr qint64 absent = -1;
    QTest::newRow("fraction is dropped") << u"00:01:23.45"_s << qint64{ 83 };
    QTest::newRow("no rounding") << u"00:00:59.99"_s << qint64{ 59 };
    QTest::newRow("minutes beyond the hour") << u"00:75:00"_s << qint64{ 4500 };
    QTest::newRow("many hours") << u"123:00:00"_s << qint64{ 442800 };
    QTest::newRow("single digits") << u"1:2:3"_s << qint64{ 3723 };
    QTest::newRow("surrounded") << u"at 00:00:10.5 of it"_s << qint64{ 10 };
    QTest::newRow("a part beyond 64 bits counts as 0")
        << u"99999999999999999999:00:07"_s << qint64{ 7 };
    QTest::newRow("not available") << u"N/A"_s << absent;
    QTest::newRow("empty") << QString() << absent;
    QTest::newRow("two parts") << u"12:34"_s << absent;
}

void TestToolOutput::getFFMpegDuration_readsHoursMinutesSeconds()
{
    QFETCH(QString, text);
    QFETCH(qint64, seconds);
    QCOMPARE(ToolOutput::getFFMpegDuration(text).value_or(-1), seconds);
}

void TestToolOutput::lastReportedPosition_takesTheLastReport_data()
{
    QTest::addColumn<QString>("block");
    QTest::addColumn<qint64>("seconds");
    QTest::newRow("two reports") << u"time=00:00:10.00 bitrate=1\rtime=00:00:12.50 bitrate=2\r"_s
                                 << qint64{ 12 };
    QTest::newRow("cut at the end")
        << u"time=00:00:10.00 bitrate=1\rtime=00:00:12"_s << qint64{ 10 };
    QTest::newRow("last one has no time")
        << u"time=00:00:10.00 bitrate=1\rtime=: bitrate="_s << qint64{ -1 };
    QTest::newRow("none") << u"frame=1"_s << qint64{ -1 };
}

void TestToolOutput::lastReportedPosition_takesTheLastReport()
{
    QFETCH(QString, block);
    QFETCH(qint64, seconds);
    QCOMPARE(ToolOutput::lastReportedPosition(block).value_or(-1), seconds);
}

void TestToolOutput::decodedBlock_losesBrokenLinesOnly_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << QByteArray("a\nпривет\n") << u"a\nпривет\n"_s;
    QTest::newRow("one bad line") << QByteArray("title: \xD0\nDuration: 1\r") << u"Duration: 1\r"_s;
    QTest::newRow("lines end in carriage returns") << QByteArray("a\r\xFF\rb") << u"a\rb"_s;
    QTest::newRow("all bad") << QByteArray("\xFF") << QString();
    QTest::newRow("nothing") << QByteArray() << QString();
}

void TestToolOutput::decodedBlock_losesBrokenLinesOnly()
{
    QFETCH(QByteArray, bytes);
    QTEST(ToolOutput::decodedBlock(bytes), "text");
}

void TestToolOutput::scanner_agreesWithASearchOfTheWholeText()
{
    // Pieces that make matches across blocks, false starts, and characters of more than one unit
    // (which shorten the range of the search) likely.
    const QStringList pieces{ u"Duration: "_s, u"00:01:40.00"_s, u"N/A"_s, u", start:"_s, u"\n"_s,
        u"\r\n"_s, u"😀"_s, u"👨‍👩‍👧"_s, u"e\u0301"_s, u"title"_s, u"\r"_s };
    QRandomGenerator random(20);
    int found = 0;
    for (int round = 0; round < 3000; ++round) {
        DurationScanner scanner;
        QString whole;
        std::optional<qint64> expected;
        for (int block = 0; block < 6; ++block) {
            QString text;
            for (int i = random.bounded(5); i > 0; --i)
                text += pieces[random.bounded(pieces.size())];
            whole += text;
            if (!expected)
                expected = ToolOutput::getFFMpegDuration(
                    Pattern::matchRegex(whole, ToolOutput::regexprDuration(), 1));
            scanner.append(text);
            QVERIFY2(scanner.duration() == expected,
                qPrintable(u"round %1: %2"_s.arg(round).arg(whole)));
        }
        found += expected ? 1 : 0;
    }
    QVERIFY(found > 20);
}

void TestToolOutput::scanner_keepsItsPaceOnLongOutput()
{
    // A search of all text after each of these blocks would take hours: the test's time limit is
    // the check.
    DurationScanner scanner;
    const QString block = u"[mov] chatter without a length\n"_s.repeated(100);
    for (int i = 0; i < 5000; ++i) {
        scanner.append(block);
        QVERIFY(!scanner.duration());
    }
    scanner.append(u"Duration: 00:00:09.00, start: 0"_s);
    QCOMPARE(scanner.duration().value_or(-1), qint64{ 9 });
}

QTEST_GUILESS_MAIN(TestToolOutput)
#include "tst_tooloutput.moc"
