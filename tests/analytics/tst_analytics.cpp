// SPDX-License-Identifier: MIT
#include "analytics/Analytics.h"
#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/Defaults.h"
#include "tests/analytics/Collector.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;

class TestAnalytics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void unwantedEvent_leavesNoTrace_data();
    void unwantedEvent_leavesNoTrace();
    void event_postsOneJsonObject_data();
    void event_postsOneJsonObject();
    void commonParameters_win();
    void address_isThatOfTheCollector_data();
    void address_isThatOfTheCollector();
    void clientId_isKept_data();
    void clientId_isKept();
    void version_isThatOfTheBundle_data();
    void version_isThatOfTheBundle();
    void locale_isTheUsersLanguage_data();
    void locale_isTheUsersLanguage();
    void otherThreads_maySend();
    void failure_printsOneLine_data();
    void failure_printsOneLine();
    void redirect_isNotFollowedElsewhere();
    void cookies_areNotSentBack();

private:
    static void collectAt(const QString &address);
    [[nodiscard]] QJsonObject onlyHit() const { return m_collector->requests.at(0).hit(); }

    std::unique_ptr<Collector> m_collector;
    QStringList m_lines;
};

namespace {

void sendEvent(const QString &action) { Analytics::send({}, u"convert"_s, action, true); }

void writeInfo(const QByteArray &entries)
{
    QFile file(Bundle::main().bundlePath() + "/Contents/Info.plist"_L1);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<plist version=\"1.0\"><dict>" + entries + "</dict></plist>");
}

}

void TestAnalytics::initTestCase()
{
    Console::setSink([this](const QString &line) { m_lines.append(line); });
}

void TestAnalytics::init()
{
    Defaults::remove(u"GA"_s);
    QFile::remove(Bundle::main().bundlePath() + "/Contents/Info.plist"_L1);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    m_collector = std::make_unique<Collector>();
    m_lines.clear();
    collectAt(m_collector->url());
}

void TestAnalytics::cleanup() { qunsetenv("DO_NOT_TRACK"); }

void TestAnalytics::collectAt(const QString &address)
{
    qputenv("VIDEO_CONVERTER_COLLECTOR_URL", address.toUtf8());
}

void TestAnalytics::unwantedEvent_leavesNoTrace_data()
{
    QTest::addColumn<QByteArray>("doNotTrack");
    QTest::addColumn<bool>("hasCollector");

    QTest::newRow("not started") << QByteArray() << true;
    QTest::newRow("do not track") << QByteArray("1") << true;
    QTest::newRow("no collector") << QByteArray() << false;
}

void TestAnalytics::unwantedEvent_leavesNoTrace()
{
    QFETCH(QByteArray, doNotTrack);
    QFETCH(bool, hasCollector);
    qputenv("DO_NOT_TRACK", doNotTrack);
    if (!hasCollector)
        collectAt({});
    sendEvent(u"unwanted"_s);
    QCoreApplication::processEvents();
    QVERIFY(!Defaults::value(u"GA"_s).isValid());

    qunsetenv("DO_NOT_TRACK");
    collectAt(m_collector->url());
    Analytics::start();
    sendEvent(u"wanted"_s);
    QTRY_COMPARE(m_collector->requests.size(), 1);
    QCOMPARE(onlyHit().value(u"ea"_s).toString(), u"wanted"_s);
}

void TestAnalytics::event_postsOneJsonObject_data()
{
    QTest::addColumn<QVariant>("label");
    QTest::addColumn<std::optional<qint64>>("value");
    QTest::addColumn<QString>("expected");

    using Value = std::optional<qint64>;
    QTest::newRow("flag") << QVariant(true) << Value() << uR"("el":true,"ev":"0")"_s;
    QTest::newRow("text") << QVariant(u">40"_s) << Value() << uR"("el":">40","ev":"0")"_s;
    QTest::newRow("value") << QVariant(u"é\"\n"_s) << Value(5) << uR"("el":"é\"\n","ev":"5")"_s;
}

void TestAnalytics::event_postsOneJsonObject()
{
    QFETCH(QVariant, label);
    QFETCH(std::optional<qint64>, value);
    QFETCH(QString, expected);
    Defaults::setValue(u"GA"_s, u"ID"_s);
    Analytics::send(QString(), u"adding_video"_s, u"size"_s, label, value);

    QTRY_COMPARE(m_collector->requests.size(), 1);
    const QByteArray head = m_collector->requests.at(0).head;
    QVERIFY2(head.startsWith("POST /collect HTTP/1.1\r\n"), head.constData());
    QVERIFY2(head.contains("Content-Type: application/json"), head.constData());
    QCOMPARE(QString::fromUtf8(m_collector->requests.at(0).body),
        uR"({"an":"ToviVideoConverter.s2.Mac","av":"1.0","cd":"","cid":"ID","ea":"size","ec":"adding_video",)"_s
            + expected
            + uR"(,"t":"event","tid":"%1","ul":"de","v":1})"_s.arg(Configuration::trackingId()));
    QCOMPARE(m_lines, QStringList());
}

void TestAnalytics::commonParameters_win()
{
    Analytics::send({ { u"v"_s, 9 }, { u"cid"_s, u"mine"_s }, { u"x"_s, 1.5 } }, u"UA-2"_s);
    QTRY_COMPARE(m_collector->requests.size(), 1);
    QCOMPARE(onlyHit().value(u"v"_s), QJsonValue(1));
    QCOMPARE(onlyHit().value(u"cid"_s).toString(), Analytics::userId());
    QCOMPARE(onlyHit().value(u"tid"_s), QJsonValue(u"UA-2"_s));
    QCOMPARE(onlyHit().value(u"x"_s), QJsonValue(1.5));
    QCOMPARE(onlyHit().size(), 7);
}

void TestAnalytics::address_isThatOfTheCollector_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("path");

    QTest::newRow("closing separator") << u"/"_s << QByteArray("/collect ");
    QTest::newRow("folder") << u"/a/b"_s << QByteArray("/a/b/collect ");
    QTest::newRow("folder with closing separator") << u"/a/"_s << QByteArray("/a/collect ");
}

void TestAnalytics::address_isThatOfTheCollector()
{
    QFETCH(QString, suffix);
    QFETCH(QByteArray, path);
    collectAt(m_collector->url() + suffix);
    sendEvent(u"abort"_s);
    QTRY_COMPARE(m_collector->requests.size(), 1);
    QVERIFY(m_collector->requests.at(0).head.startsWith("POST " + path));
}

void TestAnalytics::clientId_isKept_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("expected");

    QTest::newRow("fresh") << QVariant() << u"^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s;
    QTest::newRow("stored") << QVariant(u"x"_s) << u"^x$"_s;
    QTest::newRow("empty") << QVariant(u""_s) << u"^unknown$"_s;
}

void TestAnalytics::clientId_isKept()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, expected);
    if (stored.isValid())
        Defaults::setValue(u"GA"_s, stored);
    sendEvent(u"abort"_s);
    sendEvent(u"abort"_s);

    QTRY_COMPARE(m_collector->requests.size(), 2);
    const QString id = onlyHit().value(u"cid"_s).toString();
    QVERIFY2(QRegularExpression(expected).match(id).hasMatch(), qPrintable(id));
    QCOMPARE(m_collector->requests.at(1).hit().value(u"cid"_s).toString(), id);
    QCOMPARE(Defaults::value(u"GA"_s).toString(), stored.isValid() ? stored.toString() : id);
}

void TestAnalytics::version_isThatOfTheBundle_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("version");

    const QByteArray key = "<key>CFBundleShortVersionString</key>";
    QTest::newRow("text") << key + "<string>2.3</string>" << u"2.3"_s;
    QTest::newRow("number") << key + "<integer>2</integer>" << u"1.0"_s;
    QTest::newRow("none") << QByteArray() << u"1.0"_s;
}

void TestAnalytics::version_isThatOfTheBundle()
{
    QFETCH(QByteArray, info);
    writeInfo(info);
    QTEST(Analytics::appVersion(), "version");
}

void TestAnalytics::locale_isTheUsersLanguage_data()
{
    QTest::addColumn<QLocale>("user");
    QTest::addColumn<QString>("locale");

    QTest::newRow("none") << QLocale::c() << u"en"_s;
    QTest::newRow("two letters") << QLocale(QLocale::Russian) << u"ru"_s;
    QTest::newRow("with script") << QLocale(u"zh_Hans_CN"_s) << u"zh"_s;
    QTest::newRow("three letters") << QLocale(QLocale::Filipino) << u"fil"_s;
}

void TestAnalytics::locale_isTheUsersLanguage()
{
    QFETCH(QLocale, user);
    QLocale::setDefault(user);
    QTEST(Analytics::locale(), "locale");
}

void TestAnalytics::otherThreads_maySend()
{
    std::thread([] { sendEvent(u"first"_s); }).join();
    std::thread([] { sendEvent(u"second"_s); }).join();
    QTRY_COMPARE(m_collector->requests.size(), 2);
    QCOMPARE(m_collector->requests.at(0).hit().value(u"cid"_s),
        m_collector->requests.at(1).hit().value(u"cid"_s));
}

void TestAnalytics::failure_printsOneLine_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("start");

    QTest::newRow("nobody listens") << QByteArray() << u"nil,"_s;
    QTest::newRow("refused") << QByteArray("HTTP/1.1 503 Busy\r\nContent-Length: 0\r\n\r\n")
                             << u"503 Busy,"_s;
    QTest::newRow("cut off") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nab")
                             << u"200 OK,"_s;
    QTest::newRow("no answer") << QByteArray("") << u"nil,"_s;
}

void TestAnalytics::failure_printsOneLine()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, start);
    m_collector->answer = answer;
    if (answer.isNull())
        m_collector->close();
    sendEvent(u"abort"_s);

    QTRY_COMPARE(m_lines.size(), 1);
    QVERIFY2(m_lines.first().startsWith(start), qPrintable(m_lines.first()));
    QVERIFY(m_lines.first().size() > start.size());
}

void TestAnalytics::redirect_isNotFollowedElsewhere()
{
    Collector other;
    m_collector->answer = "HTTP/1.1 307 Moved\r\nContent-Length: 0\r\nLocation: "
        + other.url().toUtf8() + "/collect\r\n\r\n";
    sendEvent(u"abort"_s);
    QTRY_COMPARE(m_lines.size(), 1);
    QVERIFY(other.requests.isEmpty());
}

void TestAnalytics::cookies_areNotSentBack()
{
    m_collector->answer
        = "HTTP/1.1 200 OK\r\nContent-Length: 0\r\nSet-Cookie: who=you; Path=/\r\n\r\n";
    sendEvent(u"first"_s);
    QTRY_COMPARE(m_collector->requests.size(), 1);
    sendEvent(u"second"_s);
    QTRY_COMPARE(m_collector->requests.size(), 2);
    QVERIFY(!m_collector->requests.at(1).head.toLower().contains("cookie"));
}

QTEST_GUILESS_MAIN(TestAnalytics)
#include "tst_analytics.moc"
