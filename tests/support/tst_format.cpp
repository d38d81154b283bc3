// SPDX-License-Identifier: MIT
#include "support/DurationInfo.h"
#include "support/Format.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using Arguments = std::vector<FormatArgument>;

class TestFormat : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void directives_areFilled_data();
    void directives_areFilled();
    void duration_isSplitAndShown_data();
    void duration_isSplitAndShown();
};

void TestFormat::directives_areFilled_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<Arguments>("arguments");
    QTest::addColumn<QString>("text");

    const Arguments pair{ 5, u"x"_s };
    QTest::newRow("in order") << u"%d of %@"_s << pair << u"5 of x"_s;
    QTest::newRow("any kind for any argument")
        << u"%@ %d %s"_s << Arguments{ 5, u"x"_s, u"y"_s } << u"5 x y"_s;
    QTest::newRow("lengths, widths and flags")
        << u"%ld %lld %03d %-5.2s"_s << Arguments{ 1, 2, 3, u"long"_s } << u"1 2 3 long"_s;
    QTest::newRow("unsigned and 64 bits")
        << u"%u %i"_s
        << Arguments{ std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max() }
        << u"-9223372036854775808 9223372036854775807"_s;
    QTest::newRow("positions") << u"%2$@ %1$d %2$s"_s << pair << u"x 5 x"_s;
    QTest::newRow("positions do not count") << u"%2$@ %d"_s << pair << u"x 5"_s;
    QTest::newRow("percent signs") << u"%d%% %%d %%%d"_s << pair << u"5% %d %x"_s;
    QTest::newRow("missing arguments") << u"%d-%@-%s-%9$d-%0$d"_s << pair << u"5-x---"_s;
    QTest::newRow("no arguments") << u"%s%n%d"_s << Arguments{} << u"%n"_s;
    QTest::newRow("unknown directives stay")
        << u"100% %n %f %*d %y"_s << pair << u"100% %n %f %*d %y"_s;
    QTest::newRow("half a directive stays") << u"%1$ %- %l"_s << pair << u"%1$ %- %l"_s;
    QTest::newRow("absurd widths stay")
        << u"%99999999999d %99999999999$d"_s << pair << u"%99999999999d %99999999999$d"_s;
    QTest::newRow("arguments are not formats")
        << u"%@ %@"_s << Arguments{ u"%@%n%d"_s, u"100%d.mp4"_s } << u"%@%n%d 100%d.mp4"_s;
    QTest::newRow("empty") << QString() << pair << QString();
}

void TestFormat::directives_areFilled()
{
    QFETCH(QString, format);
    QFETCH(Arguments, arguments);
    QTEST(formatted(format, arguments), "text");
}

void TestFormat::duration_isSplitAndShown_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QList<qint64>>("fields");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *text, qint64 seconds, const QList<qint64> &fields) {
        QTest::newRow(text) << seconds << fields << QString::fromUtf8(text);
    };
    row("0s", 0, { 0, 0, 0, 0 });
    row("59s", 59, { 0, 0, 0, 59 });
    row("1m 0s", 60, { 0, 0, 1, 0 });
    row("59m 59s", 3599, { 0, 0, 59, 59 });
    row("1h 0m 0s", 3600, { 0, 1, 0, 0 });
    row("23h 59m 59s", 86399, { 0, 23, 59, 59 });
    row("1d 24h 0m 0s", 86400, { 1, 24, 0, 0 });
    row("1d 25h 1m 1s", 90061, { 1, 25, 1, 1 });
    row("-5s", -65, { 0, 0, -1, -5 });
    row("106751991167300d 2562047788015215h 30m 7s", std::numeric_limits<qint64>::max(),
        { 106751991167300, 2562047788015215, 30, 7 });
}

void TestFormat::duration_isSplitAndShown()
{
    QFETCH(qint64, seconds);
    const DurationInfo info(seconds);
    const QList<qint64> fields{ info.days(), info.hours(), info.minutes(), info.seconds() };
    QTEST(fields, "fields");
    QTEST(info.toString(), "text");
}

QTEST_GUILESS_MAIN(TestFormat)
#include "tst_format.moc"
