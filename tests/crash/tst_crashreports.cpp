// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "crash/Crash.h"
#include "crash/CrashReports.h"
#include "crash/SessionEvents.h"
#include "support/Defaults.h"
#include "tests/fixtures/Rows.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QNetworkProxyFactory>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_CrashReports : public QObject {
    Q_OBJECT

private:
    void leaveReport(int number)
    {
        QFile file(u"%1/crash-%2.txt"_s.arg(CrashReporter::folder()).arg(number));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("report " + QByteArray::number(number));
        file.flush();
        file.setFileTime(QDateTime::currentDateTime().addSecs(-qint64{ 60 } * number),
            QFile::FileModificationTime);
    }

    QStringList files() { return QDir(CrashReporter::folder()).entryList(QDir::Files, QDir::Name); }

    /// Runs the question with one answer for all, and returns what was asked about.
    QStringList ask(SendReport answer)
    {
        QStringList asked;
        m_reports = std::make_unique<CrashReports>();
        m_reports->uploadPending([&](const QString &report) {
            asked.append(report);
            return answer;
        });
        return asked;
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<LoopbackServer> m_server;
    std::unique_ptr<CrashReports> m_reports;

private Q_SLOTS:
    void init()
    {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        m_data = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", m_data->path().toLocal8Bit());
        QDir().mkpath(CrashReporter::folder());
        Defaults::remove(u"CrashReportsAlwaysSend"_s);
        qunsetenv("DO_NOT_TRACK");
        m_server = std::make_unique<LoopbackServer>();
        m_server->answers["/crash"] = { .status = "201 Created" };
        qputenv("VIDEO_CONVERTER_CRASH_URL", m_server->address(u"/crash"_s).toLatin1());
    }

    void newestTenAreKept()
    {
        for (int number = 1; number <= 14; ++number)
            leaveReport(number);
        const QStringList pending = CrashReports().pending();
        QCOMPARE(pending.size(), 10);
        QVERIFY(pending.first().endsWith(u"/crash-1.txt"_s));
        QVERIFY(pending.last().endsWith(u"/crash-10.txt"_s));
        QCOMPARE(files().size(), 10);
    }

    void upload_followsTheAnswer_data()
    {
        QTest::addColumn<SendReport>("answer");
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QList<QByteArray>>("sent");
        QTest::addColumn<QStringList>("left");
        const QStringList both{ u"report 1"_s, u"report 2"_s };
        const QList<QByteArray> bothSent{ "report 1", "report 2" };
        QTest::newRow("no") << SendReport::No << both << QList<QByteArray>()
                            << QStringList{ u"crash-1.refused.txt"_s, u"crash-2.refused.txt"_s };
        const QStringList sent{ u"crash-1.sent.txt"_s, u"crash-2.sent.txt"_s };
        QTest::newRow("yes") << SendReport::Yes << both << bothSent << sent;
        QTest::newRow("always") << SendReport::Always << both.mid(0, 1) << bothSent << sent;
    }
    void upload_followsTheAnswer()
    {
        QFETCH(SendReport, answer);
        QFETCH(QList<QByteArray>, sent);
        QFETCH(QStringList, left);
        leaveReport(1);
        leaveReport(2);
        QTEST(ask(answer), "asked");
        QTRY_COMPARE(files(), left);
        std::ranges::sort(m_server->bodies);
        QCOMPARE(m_server->bodies, sent);
        QCOMPARE(ask(SendReport::Yes), QStringList());
        QCOMPARE(
            Defaults::value(u"CrashReportsAlwaysSend"_s).toBool(), answer == SendReport::Always);
    }

    void upload_isTriedAgainWithoutAsking()
    {
        leaveReport(1);
        m_server->answers["/crash"] = { .status = "503 Service Unavailable" };
        QCOMPARE(ask(SendReport::Yes).size(), 1);
        QTRY_COMPARE(m_server->bodies.size(), 1);
        QCOMPARE(files(), QStringList{ u"crash-1.agreed.txt"_s });
        m_server->answers["/crash"]
            = { .status = "302 Found", .headers = "Location: /elsewhere\r\n" };
        QCOMPARE(ask(SendReport::Yes), QStringList());
        QTRY_COMPARE(m_server->bodies.size(), 2);
        QCOMPARE(files(), QStringList{ u"crash-1.agreed.txt"_s });
        m_server->answers["/crash"] = {};
        QCOMPARE(ask(SendReport::Yes), QStringList());
        QTRY_COMPARE(files(), QStringList{ u"crash-1.sent.txt"_s });
        QVERIFY(!m_server->paths.contains("/elsewhere"));
    }

    void upload_needsServiceAndLeave_data()
    {
        addRows<QByteArray, QByteArray>({ "variable", "value" },
            { { "no service", "VIDEO_CONVERTER_CRASH_URL", "" },
                { "do not track", "DO_NOT_TRACK", "1" } });
    }
    void upload_needsServiceAndLeave()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QByteArray, value);
        qputenv(variable.constData(), value);
        if (value.isEmpty() && CrashService::isConfigured())
            QSKIP("this build has a service");
        Defaults::setValue(u"CrashReportsAlwaysSend"_s, true);
        leaveReport(1);
        QCOMPARE(ask(SendReport::Always), QStringList());
        SessionEvents session;
        session.begin();
        QTest::qWait(200); // Nothing comes; there is no event to wait for.
        QCOMPARE(m_server->paths, QList<QByteArray>());
        QCOMPARE(files(), QStringList{ u"crash-1.txt"_s });
    }

    void session_tellsHowTheLastOneEnded()
    {
        Defaults::setValue(u"CrashReportsAlwaysSend"_s, true);
        for (const QByteArray &event : QByteArrayList{ "no clean end", "clean end" }) {
            m_server->bodies.clear();
            SessionEvents first;
            first.begin();
            QTRY_VERIFY(!m_server->bodies.isEmpty());
            if (event == "clean end")
                Q_EMIT qApp->aboutToQuit({});
            const QByteArray start = m_server->bodies.last();
            SessionEvents second;
            second.begin();
            const QByteArray end = QByteArray(start).replace("Event: start", "Event: " + event);
            QTRY_VERIFY2(m_server->bodies.contains(end), m_server->bodies.last().constData());
        }
    }
};

QTEST_GUILESS_MAIN(tst_CrashReports)
#include "tst_crashreports.moc"
