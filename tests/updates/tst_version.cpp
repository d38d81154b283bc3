// SPDX-License-Identifier: MIT
#include "updates/Version.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Version : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void order_isThatOfRelease();
    void order_knowsEqualSpellings_data();
    void order_knowsEqualSpellings();
    void parse_refusesOtherTexts_data();
    void parse_refusesOtherTexts();
};

void tst_Version::order_isThatOfRelease()
{
    const QStringList ascending{ u"0.9.9"_s, u"1.0-alpha"_s, u"1.0-alpha.2"_s, u"1.0-alpha.10"_s,
        u"1.0b1"_s, u"1.0-beta"_s, u"1.0-rc.1"_s, u"1.0"_s, u"1.0.0.1"_s, u"1.0.9"_s, u"1.0.10"_s,
        u"1.2-rc1"_s, u"1.2"_s, u"1.10"_s, u"2"_s, u"10.0"_s, u"999999999"_s };
    for (qsizetype low = 0; low < ascending.size(); ++low) {
        for (qsizetype high = low + 1; high < ascending.size(); ++high) {
            const bool isOrdered
                = *Version::parse(ascending[low]) < *Version::parse(ascending[high]);
            QVERIFY2(isOrdered, qPrintable(ascending[low] + u" < "_s + ascending[high]));
        }
    }
}

void tst_Version::order_knowsEqualSpellings_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::newRow("missing numbers") << u"1"_s << u"1.0.0"_s;
    QTest::newRow("leading zeros") << u"1.02"_s << u"1.2"_s;
    QTest::newRow("leading v") << u"v1.2"_s << u"1.2"_s;
    QTest::newRow("build details") << u"1.2+deb12"_s << u"1.2+git"_s;
    QTest::newRow("separators") << u"1.2-rc1"_s << u"1.2~RC.1"_s;
}

void tst_Version::order_knowsEqualSpellings()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QVERIFY(Version::parse(left) == Version::parse(right));
}

void tst_Version::parse_refusesOtherTexts_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
        { "", " 1.0", "1.0\n", "latest", "1..0", "1.", "-1.0", "../1.0", "1.0/../../x", "1.0-",
            "1.99999999999999999999", "1.0.0.0.0.0.0.0.0", "1.0<b>", "\u0661.\u0662" })
        QTest::newRow(text) << QString::fromUtf8(text);
}

void tst_Version::parse_refusesOtherTexts()
{
    QFETCH(QString, text);
    QVERIFY(!Version::parse(text));
}

QTEST_GUILESS_MAIN(tst_Version)
#include "tst_version.moc"
