// SPDX-License-Identifier: MIT
#include "updates/Appcast.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray feed(const QByteArray &items)
{
    return R"(<?xml version="1.0"?><rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>)"
        + items + "</channel></rss>";
}

QByteArray nested(const QByteArray &tag, qsizetype depth)
{
    return ("<" + tag + ">").repeated(depth) + "deep" + ("</" + tag + ">").repeated(depth);
}

}

class tst_Appcast : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void item_hasAllParts();
    void items_thatDoNotSuitAreLeftOut_data();
    void items_thatDoNotSuitAreLeftOut();
    void address_isOfTheWeb_data();
    void address_isOfTheWeb();
    void notes_arePlainText_data();
    void notes_arePlainText();
    void hostileDocuments_areRefused_data();
    void hostileDocuments_areRefused();
    void deepDocuments_doNotExhaustTheStack();
};

void tst_Appcast::item_hasAllParts()
{
    const auto items = parseAppcast(feed(R"(<title>Feed</title>
        <item><title>2.1</title><sparkle:version>1.9</sparkle:version>
          <description><![CDATA[<h2>New</h2>Fast &amp; small]]></description>
          <sparkle:minimumSystemVersion>99.0</sparkle:minimumSystemVersion>
          <enclosure url="http://example.org/mac.zip" sparkle:os="macos" sparkle:version="3.0"/>
          <enclosure url="https://example.org/a.deb" length="42" sparkle:os="linux" sparkle:version="2.1"
            sparkle:shortVersionString="2.1-rc1" sparkle:edSignature="AAEC" sparkle:versionSignature="AwQ="/>
        </item>
        <item><sparkle:version>2.0</sparkle:version><enclosure url="https://example.org/b.deb"/></item>)"),
        u"linux"_s);
    QVERIFY(items);
    QCOMPARE(items->size(), 2U);
    const AppcastItem &item = items->front();
    QCOMPARE(item.versionText, u"2.1"_s);
    QVERIFY(item.version == *Version::parse(u"2.1"_s));
    QCOMPARE(item.displayVersion, u"2.1-rc1"_s);
    QCOMPARE(item.notes, u"New\nFast & small"_s);
    QCOMPARE(item.url, QUrl(u"https://example.org/a.deb"_s));
    QCOMPARE(item.signature, QByteArray("\0\1\2", 3));
    QCOMPARE(item.versionSignature, QByteArray("\3\4"));
    QCOMPARE(items->back().displayVersion, u"2.0"_s);
}

void tst_Appcast::items_thatDoNotSuitAreLeftOut_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::newRow("other system") << QByteArray(
        R"(<item><enclosure url="http://a/b" sparkle:version="2" sparkle:os="macos"/></item>)");
    QTest::newRow("beta channel") << QByteArray(
        R"(<item><sparkle:channel>beta</sparkle:channel><enclosure url="http://a/b" sparkle:version="2"/></item>)");
    QTest::newRow("no version") << QByteArray(R"(<item><enclosure url="http://a/b"/></item>)");
    QTest::newRow("odd version") << QByteArray(
        R"(<item><enclosure url="http://a/b" sparkle:version="../2"/></item>)");
    QTest::newRow("no enclosure") << QByteArray(
        "<item><sparkle:version>2</sparkle:version></item>");
    QTest::newRow("version of another namespace") << QByteArray(
        R"(<item><enclosure xmlns:x="urn:x" url="http://a/b" x:version="2" version="3"/></item>)");
}

void tst_Appcast::items_thatDoNotSuitAreLeftOut()
{
    QFETCH(QByteArray, item);
    const auto items = parseAppcast(feed(item), u"linux"_s);
    QVERIFY(items);
    QCOMPARE(items->size(), 0U);
}

void tst_Appcast::address_isOfTheWeb_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("http") << QByteArray("http://example.org/a.deb") << true;
    QTest::newRow("https") << QByteArray("https://example.org/a.deb") << true;
    QTest::newRow("file") << QByteArray("file:///etc/passwd") << false;
    QTest::newRow("script") << QByteArray("javascript:alert(1)") << false;
    QTest::newRow("data") << QByteArray("data:text/plain,x") << false;
    QTest::newRow("no host") << QByteArray("http:///a.deb") << false;
    QTest::newRow("relative") << QByteArray("a.deb") << false;
}

void tst_Appcast::address_isOfTheWeb()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isTaken);
    const auto items = parseAppcast(
        feed("<item><enclosure sparkle:version='2' url='" + text + "'/></item>"), u"linux"_s);
    QCOMPARE(items->front().url, isTaken ? QUrl(QString::fromLatin1(text)) : QUrl());
}

void tst_Appcast::notes_arePlainText_data()
{
    QTest::addColumn<QByteArray>("description");
    QTest::addColumn<QString>("notes");
    QTest::newRow("markup") << QByteArray(
        "<![CDATA[<ul><li><b>One</b>  two</li><li>3 < 4</li></ul>]]>")
                            << u"One two\n3 < 4"_s;
    QTest::newRow("link") << QByteArray("<![CDATA[<a href='http://evil.example/'>here</a>]]>")
                          << u"here"_s;
    QTest::newRow("script") << QByteArray(
        "<![CDATA[a<script>if (1 > 0) x()</script><STYLE>p{}</style>b]]>")
                            << u"ab"_s;
    QTest::newRow("open script") << QByteArray("<![CDATA[a<script>x()]]>") << u"a"_s;
    QTest::newRow("open tag") << QByteArray("<![CDATA[a<img src=x]]>") << u"a"_s;
    QTest::newRow("entities once")
        << QByteArray("<![CDATA[&amp;lt;b&gt; &nbsp;&quot;]]>") << u"&lt;b> \""_s;
    QTest::newRow("real elements") << QByteArray("one <b>two</b>") << u"one two"_s;
    QTest::newRow("direction marks") << QByteArray("a\xe2\x80\xae"
                                                   "b")
                                     << u"ab"_s;
    QTest::newRow("much text") << QByteArray(900'000, 'x') << QString(4000, u'x');
    QTest::newRow("many openings")
        << "<![CDATA[" + QByteArray("<script").repeated(100'000) + "]]>" << QString();
}

void tst_Appcast::notes_arePlainText()
{
    QFETCH(QByteArray, description);
    const auto items = parseAppcast(
        feed("<item><description>" + description
            + "</description><enclosure sparkle:version='2' url='http://a/b'/></item>"),
        u"linux"_s);
    QVERIFY(items);
    QTEST(items->front().notes, "notes");
}

void tst_Appcast::hostileDocuments_areRefused_data()
{
    QTest::addColumn<QByteArray>("xml");
    const QByteArray good = feed("<item><enclosure sparkle:version='2' url='http://a/b'/></item>");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("\x7f"
                                          "ELF\0\1",
        6);
    QTest::newRow("cut off") << good.chopped(8);
    QTest::newRow("two roots") << good + "<rss/>";
    QTest::newRow("other root") << QByteArray("<html><item/></html>");
    QTest::newRow("undeclared entity") << feed("<item><description>&bomb;</description></item>");
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

void tst_Appcast::hostileDocuments_areRefused()
{
    QFETCH(QByteArray, xml);
    QVERIFY(!parseAppcast(xml, u"linux"_s));
}

void tst_Appcast::deepDocuments_doNotExhaustTheStack()
{
    const QByteArray deep = nested("a", 140'000);
    const QByteArray enclosure = "<enclosure sparkle:version='2' url='http://a/b'/>";
    const auto items = parseAppcast(
        feed("<item><description>" + deep + "</description>" + deep + enclosure + "</item>" + deep),
        u"linux"_s);
    QVERIFY(items);
    QCOMPARE(items->front().notes, u"deep"_s);
}

QTEST_GUILESS_MAIN(tst_Appcast)
#include "tst_appcast.moc"
