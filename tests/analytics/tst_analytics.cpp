// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "analytics/Analytics.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/Defaults.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;

class TestAnalytics : public QObject {
    Q_OBJECT

private:
    static void sendEvent(const QString &action)
    {
        Analytics::send({}, u"convert"_s, action, true);
    }

    /// A value of the hit that came at this place.
    [[nodiscard]] QJsonValue sent(const QString &name, qsizetype place = 0) const
    {
        return m_collector->requests.at(place).hit().value(name);
    }

    std::unique_ptr<LoopbackServer> m_collector;
    QStringList m_lines;

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([this](const QString &line) { m_lines.append(line); });
    }

    void init()
    {
        Defaults::remove(u"GA"_s);
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
        m_collector = std::make_unique<LoopbackServer>();
        m_lines.clear();
        qputenv("VIDEO_CONVERTER_COLLECTOR_URL", m_collector->address({}).toUtf8());
    }

    // The first test: the program starts its analytics once.
    void unwantedEvent_leavesNoTrace()
    {
        sendEvent(u"not started"_s);
        QCoreApplication::processEvents();
        Analytics::start();
        qputenv("DO_NOT_TRACK", "1");
        sendEvent(u"do not track"_s);
        QCoreApplication::processEvents();
        qunsetenv("DO_NOT_TRACK");
        qunsetenv("VIDEO_CONVERTER_COLLECTOR_URL");
        sendEvent(u"no collector"_s);
        QCoreApplication::processEvents();
        QVERIFY(!Defaults::value(u"GA"_s).isValid());

        qputenv("VIDEO_CONVERTER_COLLECTOR_URL", m_collector->address({}).toUtf8());
        sendEvent(u"wanted"_s);
        QTRY_COMPARE(m_collector->requests.size(), 1);
        QCOMPARE(sent(u"ea"_s), u"wanted"_s);
    }

    void event_postsOneJsonObject()
    {
        Defaults::setValue(u"GA"_s, u"ID"_s);
        Analytics::send(QString(), u"adding_video"_s, u"size"_s, u"é\"\n>40"_s, 5);
        QTRY_COMPARE(m_collector->requests.size(), 1);
        const auto [head, path, body] = m_collector->requests.constFirst();
        QVERIFY2(head.startsWith("POST /collect HTTP/1.1\r\n"), head.constData());
        QVERIFY2(head.contains("Content-Type: application/json"), head.constData());
        const QJsonObject expected{ { u"v"_s, 1 }, { u"t"_s, u"event"_s }, { u"cid"_s, u"ID"_s },
            { u"tid"_s, Configuration::trackingId() }, { u"an"_s, u"ToviVideoConverter.s2.Mac"_s },
            { u"av"_s, u"1.0"_s }, { u"ul"_s, u"de"_s }, { u"cd"_s, u""_s },
            { u"ec"_s, u"adding_video"_s }, { u"ea"_s, u"size"_s }, { u"el"_s, u"é\"\n>40"_s },
            { u"ev"_s, u"5"_s } };
        QCOMPARE(body, QJsonDocument(expected).toJson(QJsonDocument::Compact));
        QCOMPARE(m_lines, QStringList());
    }

    void clientId_isKept()
    {
        const std::pair<QVariant, QString> ids[]{ { u"x"_s, u"^x$"_s }, { u""_s, u"^unknown$"_s },
            { {}, u"^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s } };
        for (const auto &[stored, expected] : ids) {
            m_collector->requests.clear();
            Defaults::setValue(u"GA"_s, stored);
            // Any thread may send.
            std::thread([] { sendEvent(u"first"_s); }).join();
            std::thread([] { sendEvent(u"second"_s); }).join();
            QTRY_COMPARE(m_collector->requests.size(), 2);
            const QString id = sent(u"cid"_s).toString();
            QVERIFY2(QRegularExpression(expected).match(id).hasMatch(), qPrintable(id));
            QCOMPARE(sent(u"cid"_s, 1), id);
            QCOMPARE(Defaults::value(u"GA"_s).toString(), stored.isNull() ? id : stored.toString());
        }
        QCOMPARE(sent(u"el"_s), true);
        QCOMPARE(sent(u"ev"_s), u"0"_s);
    }

    void failure_printsOneLineAndStartsNoConversation()
    {
        const LoopbackServer other;
        const QByteArray headers = "Set-Cookie: who=you; Path=/\r\nLocation: "
            + other.address({}).toUtf8() + "/collect\r\n";
        for (const QByteArray status : { "307 Moved", "503 Busy", "nil" }) {
            m_collector->answers["/collect"] = { .status = status, .headers = headers };
            if (status == "nil")
                m_collector->close();
            sendEvent(u"abort"_s);
            QTRY_COMPARE(m_lines.size(), 1);
            const QByteArray line = m_lines.takeFirst().toUtf8();
            QVERIFY2(line.startsWith(status + ',') && line.size() > status.size() + 1, line.data());
        }
        QVERIFY(other.requests.isEmpty());
        QCOMPARE(m_collector->requests.size(), 2);
        QVERIFY(!m_collector->requests[1].head.toLower().contains("cookie"));
    }
};

QTEST_GUILESS_MAIN(TestAnalytics)
#include "tst_analytics.moc"
