// SPDX-License-Identifier: MIT
#include "analytics/Analytics.h"
#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/Defaults.h"
#include "tests/analytics/Collector.h"

#include <QFile>
#include <QJsonDocument>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;

class TestAnalytics : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<Collector> m_collector;
    QStringList m_lines;

    static void collectAt(const QString &address)
    {
        qputenv("VIDEO_CONVERTER_COLLECTOR_URL", address.toUtf8());
    }

    static void sendEvent(const QString &action)
    {
        Analytics::send({}, u"convert"_s, action, true);
    }

    /// A value of the hit that came at this place.
    [[nodiscard]] QJsonValue told(const QString &name, qsizetype place = 0) const
    {
        return m_collector->requests.at(place).hit().value(name);
    }

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([this](const QString &line) { m_lines.append(line); });
    }

    void init()
    {
        Defaults::remove(u"GA"_s);
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
        m_collector = std::make_unique<Collector>();
        m_lines.clear();
        collectAt(m_collector->url());
    }

    void unwantedEvent_leavesNoTrace_data()
    {
        QTest::addColumn<QByteArray>("doNotTrack");
        QTest::addColumn<bool>("hasCollector");
        QTest::newRow("not started") << QByteArray() << true;
        QTest::newRow("do not track") << QByteArray("1") << true;
        QTest::newRow("no collector") << QByteArray() << false;
    }

    void unwantedEvent_leavesNoTrace()
    {
        QFETCH(QByteArray, doNotTrack);
        QFETCH(bool, hasCollector);
        qputenv("DO_NOT_TRACK", doNotTrack);
        if (!hasCollector)
            collectAt({});
        sendEvent(u"unwanted"_s);
        QCoreApplication::processEvents();
        qunsetenv("DO_NOT_TRACK");
        QVERIFY(!Defaults::value(u"GA"_s).isValid());

        collectAt(m_collector->url());
        Analytics::start();
        sendEvent(u"wanted"_s);
        QTRY_COMPARE(m_collector->requests.size(), 1);
        QCOMPARE(told(u"ea"_s), u"wanted"_s);
    }

    void event_postsOneJsonObject_data()
    {
        QTest::addColumn<QVariant>("label");
        QTest::addColumn<std::optional<qint64>>("value");
        using Value = std::optional<qint64>;
        QTest::newRow("flag") << QVariant(true) << Value();
        QTest::newRow("text") << QVariant(u"é\"\n>40"_s) << Value(5);
    }

    void event_postsOneJsonObject()
    {
        QFETCH(QVariant, label);
        QFETCH(std::optional<qint64>, value);
        Defaults::setValue(u"GA"_s, u"ID"_s);
        Analytics::send(QString(), u"adding_video"_s, u"size"_s, label, value);

        QTRY_COMPARE(m_collector->requests.size(), 1);
        const auto [head, body] = m_collector->requests.constFirst();
        QVERIFY2(head.startsWith("POST /collect HTTP/1.1\r\n"), head.constData());
        QVERIFY2(head.contains("Content-Type: application/json"), head.constData());
        const QJsonObject expected{ { u"v"_s, 1 }, { u"t"_s, u"event"_s }, { u"cid"_s, u"ID"_s },
            { u"tid"_s, Configuration::trackingId() }, { u"an"_s, u"ToviVideoConverter.s2.Mac"_s },
            { u"av"_s, u"1.0"_s }, { u"ul"_s, u"de"_s }, { u"cd"_s, u""_s },
            { u"ec"_s, u"adding_video"_s }, { u"ea"_s, u"size"_s },
            { u"el"_s, label.toJsonValue() }, { u"ev"_s, value ? u"5"_s : u"0"_s } };
        QCOMPARE(body, QJsonDocument(expected).toJson(QJsonDocument::Compact));
        QCOMPARE(m_lines, QStringList());
    }

    void commonParameters_win()
    {
        Analytics::send({ { u"v"_s, 9 }, { u"cid"_s, u"mine"_s }, { u"x"_s, 1.5 } }, u"UA-2"_s);
        QTRY_COMPARE(m_collector->requests.size(), 1);
        QCOMPARE(told(u"v"_s), 1);
        QCOMPARE(told(u"cid"_s), Analytics::userId());
        QCOMPARE(told(u"tid"_s), u"UA-2"_s);
        QCOMPARE(told(u"x"_s), 1.5);
        QCOMPARE(m_collector->requests.constFirst().hit().size(), 7);
    }

    void clientId_isKept()
    {
        const std::pair<QVariant, QString> ids[]{
            { {}, u"^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s },
            { u"x"_s, u"^x$"_s },
            { u""_s, u"^unknown$"_s },
        };
        for (const auto &[stored, expected] : ids) {
            m_collector->requests.clear();
            if (stored.isValid())
                Defaults::setValue(u"GA"_s, stored);
            // Any thread may send.
            std::thread([] { sendEvent(u"first"_s); }).join();
            std::thread([] { sendEvent(u"second"_s); }).join();
            QTRY_COMPARE(m_collector->requests.size(), 2);
            const QString id = told(u"cid"_s).toString();
            QVERIFY2(QRegularExpression(expected).match(id).hasMatch(), qPrintable(id));
            QCOMPARE(told(u"cid"_s, 1), id);
            QCOMPARE(
                Defaults::value(u"GA"_s).toString(), stored.isValid() ? stored.toString() : id);
        }
    }

    void version_isThatOfTheBundle()
    {
        QFile info(Bundle::main().bundlePath() + "/Contents/Info.plist"_L1);
        QVERIFY(info.open(QIODevice::WriteOnly));
        info.write("<plist><dict><key>CFBundleShortVersionString</key><string>2.3</string>"
                   "</dict></plist>");
        info.close();
        const QString version = Analytics::appVersion();
        QVERIFY(info.remove());
        QCOMPARE(version, u"2.3"_s);
    }

    void locale_isTheUsersLanguage()
    {
        const std::pair<QLocale, QString> locales[]{ { QLocale::c(), u"en"_s },
            { QLocale(u"zh_Hans_CN"_s), u"zh"_s }, { QLocale(QLocale::Filipino), u"fil"_s } };
        for (const auto &[user, locale] : locales) {
            QLocale::setDefault(user);
            QCOMPARE(Analytics::locale(), locale);
        }
    }

    void failure_printsOneLine_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("start");
        QTest::newRow("nobody listens") << QByteArray() << u"nil,"_s;
        QTest::newRow("no answer") << QByteArray("") << u"nil,"_s;
        QTest::newRow("refused") << QByteArray("HTTP/1.1 503 Busy\r\nContent-Length: 0\r\n\r\n")
                                 << u"503 Busy,"_s;
        QTest::newRow("cut off") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nab")
                                 << u"200 OK,"_s;
    }

    void failure_printsOneLine()
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

    void redirect_isNotFollowedElsewhere()
    {
        const Collector other;
        m_collector->answer = "HTTP/1.1 307 Moved\r\nContent-Length: 0\r\nLocation: "
            + other.url().toUtf8() + "/collect\r\n\r\n";
        sendEvent(u"abort"_s);
        QTRY_COMPARE(m_lines.size(), 1);
        QVERIFY(other.requests.isEmpty());
    }

    void cookies_areNotSentBack()
    {
        m_collector->answer
            = "HTTP/1.1 200 OK\r\nContent-Length: 0\r\nSet-Cookie: who=you; Path=/\r\n\r\n";
        for (const qsizetype count : { 1, 2 }) {
            sendEvent(u"abort"_s);
            QTRY_COMPARE(m_collector->requests.size(), count);
        }
        QVERIFY(!m_collector->requests.at(1).head.toLower().contains("cookie"));
    }
};

QTEST_GUILESS_MAIN(TestAnalytics)
#include "tst_analytics.moc"
