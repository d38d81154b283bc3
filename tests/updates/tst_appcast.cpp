// SPDX-License-Identifier: MIT
#include "updates/Appcast.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray feed(const QByteArray &items)
{
    return "<?xml version='1.0'?><rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/"
           "sparkle'><channel>"
        + items + "</channel></rss>";
}

std::optional<std::vector<AppcastItem>> parsed(const QByteArray &item)
{
    return parseAppcast(feed("<item>" + item + "</item>"), u"linux"_s);
}

}

class tst_Appcast : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void item_hasAllParts()
    {
        const QByteArray xml = R"(<title>Feed</title>
            <item><title>2.1</title><sparkle:version>1.9</sparkle:version>
            <description><![CDATA[<h2>New</h2>Fast &amp; small]]></description>
            <sparkle:minimumSystemVersion>99.0</sparkle:minimumSystemVersion>
            <enclosure url='http://example.org/mac.zip' sparkle:os='macos' sparkle:version='3.0'/>
            <enclosure url='https://example.org/a.deb' length='42' sparkle:os='linux'
             sparkle:version='2.1' sparkle:shortVersionString='2.1-rc1'
             sparkle:edSignature='AAEC' sparkle:versionSignature='AwQ='/></item>
            <item><sparkle:version>2.0</sparkle:version><enclosure url='http://a/b'/></item>)";
        const auto items = parseAppcast(feed(xml), u"linux"_s);
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
        QCOMPARE(items->back().url, QUrl(u"http://a/b"_s));
    }

    void items_thatDoNotSuitAreLeftOut()
    {
        for (const QByteArray item : {
                 "<enclosure url='http://a/b' sparkle:version='2' sparkle:os='macos'/>",
                 "<sparkle:channel>beta</sparkle:channel><enclosure sparkle:version='2'/>",
                 "<enclosure url='http://a/b'/>",
                 "<enclosure url='http://a/b' sparkle:version='../2'/>",
                 "<sparkle:version>2</sparkle:version>",
                 "<enclosure xmlns:x='urn:x' url='http://a/b' x:version='2' version='3'/>",
             })
            QVERIFY2(parsed(item).value().empty(), item.constData());
    }

    void addressesOutsideTheWeb_areRefused()
    {
        for (const QByteArray address : { "file:///etc/passwd", "javascript:alert(1)",
                 "data:text/plain,x", "http:///a.deb", "a.deb" }) {
            const auto items = parsed("<enclosure sparkle:version='2' url='" + address + "'/>");
            QVERIFY2(items->front().url == QUrl(), address.constData());
        }
    }

    void hostileDocuments_areRefused()
    {
        const QByteArray good = feed({});
        QVERIFY(parseAppcast(good, u"linux"_s));
        for (const QByteArray &xml : { QByteArray(), QByteArray("\x7f\x45LF\0\1", 6),
                 good.chopped(8), good + "<rss/>", QByteArray("<html><item/></html>"),
                 feed("<item><description>&undeclared;</description></item>"),
                 feed("<item><undeclared:version>2</undeclared:version></item>"),
                 QByteArray("<!DOCTYPE rss><rss/>"),
                 QByteArray("<!DOCTYPE rss [<!ENTITY a 'ha'>]><rss>&a;</rss>"),
                 QByteArray("<!DOCTYPE rss [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><rss/>") })
            QVERIFY2(!parseAppcast(xml, u"linux"_s), xml.constData());
    }

    void versions_areOrderedByRelease()
    {
        const QStringList ascending
            = u"0.9.9 1.0-alpha 1.0-alpha.2 1.0-alpha.10 1.0b1 1.0-beta 1.0-rc.1 1.0 1.0.0.1 "
              "1.0.9 1.0.10 1.2-rc1 1.2 1.10 2 10.0 999999999"_s.split(u' ');
        QStringList sorted = ascending;
        std::ranges::reverse(sorted);
        std::ranges::sort(sorted, {}, [](const QString &text) { return *Version::parse(text); });
        QCOMPARE(sorted, ascending);
    }
};

QTEST_GUILESS_MAIN(tst_Appcast)
#include "tst_appcast.moc"
