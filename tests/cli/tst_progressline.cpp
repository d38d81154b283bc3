// SPDX-License-Identifier: MIT
#include "cli/ProgressLine.h"
#include "cli/ShownText.h"

#include <QTest>

#include <clocale>

using namespace Qt::StringLiterals;

class TestProgressLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void text_tellsWhatIsKnown_data();
    void text_tellsWhatIsKnown();
    void bar_fitsTheTerminal_data();
    void bar_fitsTheTerminal();
    void bar_isBusyWithoutALength();
    void word_isQuotedForAShell_data();
    void word_isQuotedForAShell();
    void names_areMadeHarmless();
};

void TestProgressLine::initTestCase()
{
    // Widths of characters are those of the locale.
    std::setlocale(LC_ALL, "C.UTF-8");
}

void TestProgressLine::text_tellsWhatIsKnown_data()
{
    QTest::addColumn<qint64>("completed");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *tag, qint64 completed, qint64 total, qint64 milliseconds,
                         const char *text) {
        QTest::newRow(tag) << completed << total << milliseconds << QString::fromLatin1(text);
    };
    row("start", 0, -1, 0, "0s so far");
    row("length unknown", 0, -1, 61'500, "1m 1s so far");
    row("length of nothing", 0, 0, 2000, "2s so far");
    row("no report yet", 0, 100, 5000, "  0%");
    row("too early for a forecast", 10, 100, 900, " 10%");
    row("half", 50, 100, 10'000, " 50%  5.0x  10s left");
    row("fast", 5000, 7200, 10'000, " 69%  500x  5s left");
    row("slow", 1, 7200, 60'000, "  0%  0.0x  4d 119h 59m 0s left");
    row("done", 100, 100, 10'000, "100%  10x  0s left");
    row("never rounded up to all", 9999, 10'000, 1'000'000, " 99%  10.0x  1s left");
    row("centuries", 1, 9'000'000'000'000, 60'000, "  0%  0.0x");
}

void TestProgressLine::text_tellsWhatIsKnown()
{
    QFETCH(qint64, completed);
    QFETCH(qint64, total);
    QFETCH(qint64, milliseconds);
    const ProgressSample sample{ completed, total, std::chrono::milliseconds(milliseconds) };
    QTEST(progressText(sample), "text");
}

void TestProgressLine::bar_fitsTheTerminal_data()
{
    QTest::addColumn<QString>("film");
    QTest::addColumn<int>("columns");
    const QString wide = QString(60, u'片');
    for (const int columns : { 1, 20, 40, 60, 80, 100, 400 }) {
        QTest::addRow("short name, %d", columns) << u"a.mov"_s << columns;
        QTest::addRow("wide name, %d", columns) << wide << columns;
        QTest::addRow("emoji, %d", columns) << u"🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬.mov"_s << columns;
    }
}

void TestProgressLine::bar_fitsTheTerminal()
{
    QFETCH(QString, film);
    QFETCH(int, columns);
    for (const qint64 total : { -1, 100 }) {
        for (const qint64 completed : { 0, 37, 100 }) {
            const QString bar
                = progressBar(film, { completed, total, std::chrono::seconds(100'000) }, columns);
            QVERIFY2(columnsOf(bar) <= std::max(1, columns - 1), qPrintable(bar));
        }
    }
    const QString bar = progressBar(film, { 50, 100, std::chrono::seconds(10) }, columns);
    if (columns >= 80)
        QVERIFY2(bar.count(u'#') == bar.count(u'-') && bar.endsWith(u" 50%  5.0x  10s left"_s),
            qPrintable(bar));
}

void TestProgressLine::bar_isBusyWithoutALength()
{
    QStringList seen;
    for (int step = 0; step < 100; ++step) {
        const QString bar
            = progressBar(u"a"_s, { 0, -1, std::chrono::milliseconds(step * 200) }, 80);
        QCOMPARE(bar.count(u"###"_s), 1);
        seen << bar.mid(bar.indexOf(u'['), bar.indexOf(u']') - bar.indexOf(u'['));
    }
    QCOMPARE(seen.first().size(), seen.last().size());
    seen.removeDuplicates();
    QVERIFY2(seen.size() > 10, "the block moves");
}

void TestProgressLine::word_isQuotedForAShell_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("quoted");
    QTest::newRow("plain") << u"/a/b-1_2.mp4"_s << u"/a/b-1_2.mp4"_s;
    QTest::newRow("empty") << QString() << u"''"_s;
    QTest::newRow("space") << u"a b"_s << u"'a b'"_s;
    QTest::newRow("quotes") << u"a'b\"c"_s << uR"('a'\''b"c')"_s;
    QTest::newRow("line end") << u"a\n"_s << u"'a\n'"_s;
    QTest::newRow("filter") << u"scale=min(iw\\,600):-1"_s << u"'scale=min(iw\\,600):-1'"_s;
    QTest::newRow("home") << u"~"_s << u"'~'"_s;
    QTest::newRow("other letters") << u"ä"_s << u"'ä'"_s;
}

void TestProgressLine::word_isQuotedForAShell()
{
    QFETCH(QString, word);
    QTEST(shellQuoted(word), "quoted");
}

void TestProgressLine::names_areMadeHarmless()
{
    QCOMPARE(printable(u"a\n\u001b[31m\u007f\u009b\u202e\u2028b"_s), u"a??[31m????b"_s);
    QCOMPARE(printable(u"100%d ä 👩‍👩‍👧 \u200f"_s),
        u"100%d ä 👩‍👩‍👧 \u200f"_s);
    QCOMPARE(elided(u"abcdefghij"_s, 5), u"ab…ij"_s);
    QCOMPARE(elided(u"片片片片"_s, 8), u"片片片片"_s);
}

QTEST_GUILESS_MAIN(TestProgressLine)
#include "tst_progressline.moc"
