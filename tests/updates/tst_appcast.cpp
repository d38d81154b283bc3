// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "updates/Appcast.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Bytes = QByteArray;

namespace {

QByteArray feed(const QByteArray &items)
{
    return R"(<?xml version="1.0"?><rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>)"
        + items + "</channel></rss>";
}

// clang-format off
constexpr char wholeItem[]
    = "<title>Feed</title> "
      "<item><title>2.1</title><sparkle:version>1.9</sparkle:version> "
      "<description><![CDATA[<h2>New</h2>Fast &amp; small]]></description> "
      "<sparkle:minimumSystemVersion>99.0</sparkle:minimumSystemVersion> "
      "<enclosure url='http://example.org/mac.zip' sparkle:os='macos' sparkle:version='3.0'/> "
      "<enclosure url='https://example.org/a.deb' length='42' sparkle:os='linux' sparkle:version='2.1' "
      "sparkle:shortVersionString='2.1-rc1' sparkle:edSignature='AAEC' sparkle:versionSignature='AwQ='/> "
      "</item> "
      "<item><sparkle:version>2.0</sparkle:version><enclosure url='https://example.org/b.deb'/></item>";
// clang-format on

}

class tst_Appcast : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void item_hasAllParts()
    {
        const auto items = parseAppcast(feed(wholeItem), u"linux"_s);
        QVERIFY(items);
        QCOMPARE(items->size(), 2U);
        const AppcastItem &item = items->front();
        QCOMPARE(item.versionText, u"2.1"_s);
        QVERIFY(item.version == *Version::parse(u"2.1"_s));
        QCOMPARE(item.displayVersion, u"2.1-rc1"_s);
        QCOMPARE(item.notes, u"<h2>New</h2>Fast &amp; small"_s);
        QCOMPARE(item.url, QUrl(u"https://example.org/a.deb"_s));
        QCOMPARE(item.signature, QByteArray("\0\1\2", 3));
        QCOMPARE(item.versionSignature, QByteArray("\3\4"));
        QCOMPARE(items->back().displayVersion, u"2.0"_s);
    }

    void items_thatDoNotSuitAreLeftOut_data()
    {
        // clang-format off
        addRows<Bytes>({ "item" }, {
            { "other system", "<item><enclosure url='http://a/b' sparkle:version='2' sparkle:os='macos'/></item>" },
            { "beta channel", "<item><sparkle:channel>beta</sparkle:channel><enclosure url='http://a/b' sparkle:version='2'/></item>" },
            { "no version", "<item><enclosure url='http://a/b'/></item>" },
            { "odd version", "<item><enclosure url='http://a/b' sparkle:version='../2'/></item>" },
            { "no enclosure", "<item><sparkle:version>2</sparkle:version></item>" },
            { "version of another namespace", "<item><enclosure xmlns:x='urn:x' url='http://a/b' x:version='2' version='3'/></item>" },
        });
        // clang-format on
    }
    void items_thatDoNotSuitAreLeftOut()
    {
        QFETCH(QByteArray, item);
        const auto items = parseAppcast(feed(item), u"linux"_s);
        QVERIFY(items);
        QCOMPARE(items->size(), 0U);
    }

    void address_isOfTheWeb_data()
    {
        addRows<Bytes, bool>({ "text", "isTaken" },
            { { "http", "http://example.org/a.deb", true },
                { "https", "https://example.org/a.deb", true },
                { "file", "file:///etc/passwd", false }, { "script", "javascript:alert(1)", false },
                { "data", "data:text/plain,x", false }, { "no host", "http:///a.deb", false },
                { "relative", "a.deb", false } });
    }
    void address_isOfTheWeb()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isTaken);
        const auto items = parseAppcast(
            feed("<item><enclosure sparkle:version='2' url='" + text + "'/></item>"), u"linux"_s);
        QCOMPARE(items->front().url, isTaken ? QUrl(QString::fromLatin1(text)) : QUrl());
    }

    void hostileDocuments_areRefused_data()
    {
        QTest::addColumn<QByteArray>("xml");
        const QByteArray good
            = feed("<item><enclosure sparkle:version='2' url='http://a/b'/></item>");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no XML") << QByteArray("\x7f"
                                              "ELF\0\1",
            6);
        QTest::newRow("cut off") << good.chopped(8);
        QTest::newRow("two roots") << good + "<rss/>";
        QTest::newRow("other root") << QByteArray("<html><item/></html>");
        QTest::newRow("undeclared entity")
            << feed("<item><description>&bomb;</description></item>");
        QTest::newRow("undeclared prefix") << feed("<item><evil:version>2</evil:version></item>");
        QByteArray bomb = "<!DOCTYPE rss [<!ENTITY a0 'ha'>";
        for (int level = 1; level < 30; ++level) {
            const QByteArray inner = "&a" + QByteArray::number(level - 1) + ";";
            bomb += "<!ENTITY a" + QByteArray::number(level) + " '" + inner + inner + "'>";
        }
        QTest::newRow("entity bomb") << bomb + "]><rss>&a29;</rss>";
        QTest::newRow("outside entity") << QByteArray(
            "<!DOCTYPE rss [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><rss><item>&x;</item></rss>");
        QTest::newRow("bare document type") << QByteArray("<!DOCTYPE rss><rss/>");
    }
    void hostileDocuments_areRefused()
    {
        QFETCH(QByteArray, xml);
        QVERIFY(!parseAppcast(xml, u"linux"_s));
    }
};

QTEST_GUILESS_MAIN(tst_Appcast)
#include "tst_appcast.moc"
