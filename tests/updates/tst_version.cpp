// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "updates/Version.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Version : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void order_isThatOfRelease()
    {
        const QStringList ascending{ u"0.9.9"_s, u"1.0-alpha"_s, u"1.0-alpha.2"_s,
            u"1.0-alpha.10"_s, u"1.0b1"_s, u"1.0-beta"_s, u"1.0-rc.1"_s, u"1.0"_s, u"1.0.0.1"_s,
            u"1.0.9"_s, u"1.0.10"_s, u"1.2-rc1"_s, u"1.2"_s, u"1.10"_s, u"2"_s, u"10.0"_s,
            u"999999999"_s };
        for (qsizetype low = 0; low < ascending.size(); ++low) {
            for (qsizetype high = low + 1; high < ascending.size(); ++high) {
                const bool isOrdered
                    = *Version::parse(ascending[low]) < *Version::parse(ascending[high]);
                QVERIFY2(isOrdered, qPrintable(ascending[low] + u" < "_s + ascending[high]));
            }
        }
    }

    void order_knowsEqualSpellings_data()
    {
        addRows<Utf8, Utf8>({ "left", "right" },
            { { "missing numbers", "1", "1.0.0" }, { "leading zeros", "1.02", "1.2" },
                { "leading v", "v1.2", "1.2" }, { "build details", "1.2+deb12", "1.2+git" },
                { "separators", "1.2-rc1", "1.2~RC.1" } });
    }
    void order_knowsEqualSpellings()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QVERIFY(Version::parse(left) == Version::parse(right));
    }

    void parse_refusesOtherTexts()
    {
        for (const char *text :
            { "", " 1.0", "1.0\n", "latest", "1..0", "1.", "-1.0", "../1.0", "1.0/../../x", "1.0-",
                "1.99999999999999999999", "1.0.0.0.0.0.0.0.0", "1.0<b>", "\u0661.\u0662" })
            QVERIFY2(!Version::parse(QString::fromUtf8(text)), text);
    }
};

QTEST_GUILESS_MAIN(tst_Version)
#include "tst_version.moc"
