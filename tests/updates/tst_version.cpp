// SPDX-License-Identifier: MIT
#include "updates/Version.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Version : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void order_isThatOfRelease()
    {
        const QStringList ascending
            = u"0.9.9 1.0-alpha 1.0-alpha.2 1.0-alpha.10 1.0b1 1.0-beta 1.0-rc.1 1.0 1.0.0.1 "
              "1.0.9 1.0.10 1.2-rc1 1.2 1.10 2 10.0 999999999"_s.split(u' ');
        for (qsizetype low = 0; low < ascending.size(); ++low) {
            for (const QString &high : ascending.sliced(low + 1)) {
                const bool isOrdered = *Version::parse(ascending[low]) < *Version::parse(high);
                QVERIFY2(isOrdered, qPrintable(ascending[low] + u" < "_s + high));
            }
        }
    }

    void order_knowsEqualSpellings()
    {
        const std::pair<QString, QString> spellings[]{ { u"1"_s, u"1.0.0"_s },
            { u"1.02"_s, u"1.2"_s }, { u"v1.2"_s, u"1.2"_s }, { u"1.2+deb12"_s, u"1.2+git"_s },
            { u"1.2-rc1"_s, u"1.2~RC.1"_s } };
        for (const auto &[left, right] : spellings)
            QVERIFY2(Version::parse(left) == Version::parse(right), qPrintable(left));
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
