// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "crash/Crash.h"
#include "crash/CrashReports.h"
#include "crash/dialog/CrashQuestion.h"
#include "support/Defaults.h"
#include "tests/fixtures/Rows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class tst_CrashReports : public QObject {
    Q_OBJECT

private:
    static void leaveReport(int number)
    {
        QFile file(u"%1/crash-%2.txt"_s.arg(CrashReporter::folder()).arg(number));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("report " + QByteArray::number(number));
        file.flush();
        file.setFileTime(QDateTime::currentDateTime().addSecs(-qint64{ 60 } * number),
            QFile::FileModificationTime);
    }

    /// The names of the reports' files.
    static QString files()
    {
        return QDir(CrashReporter::folder()).entryList(QDir::Files, QDir::Name).join(u' ');
    }

    /// Runs the question with one answer for all, and counts how often it was asked.
    int ask(SendReport answer)
    {
        int asked = 0;
        m_reports = std::make_unique<CrashReports>();
        m_reports->uploadPending([&](const QString &report) {
            ++asked;
            return report == u"report %1"_s.arg(asked) ? answer : SendReport::No;
        });
        return asked;
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<LoopbackServer> m_server;
    std::unique_ptr<CrashReports> m_reports;

private Q_SLOTS:
    void init()
    {
        m_data = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", m_data->path().toLocal8Bit());
        QDir().mkpath(CrashReporter::folder());
        Defaults::remove(u"CrashReportsAlwaysSend"_s);
        m_server = std::make_unique<LoopbackServer>();
        m_server->answers["/crash"] = { .status = "201 Created" };
        qputenv("VIDEO_CONVERTER_CRASH_URL", m_server->address(u"/crash"_s).toLatin1());
    }

    void newestTenAreKept()
    {
        for (int number = 1; number <= 14; ++number)
            leaveReport(number);
        // Only those that come in the order of their numbers are sent.
        QCOMPARE(ask(SendReport::Yes), 10);
        QTRY_COMPARE(files().count(u".sent."), 10);
        QCOMPARE(files().count(u"crash-"), 10);
    }

    void upload_followsTheAnswer_data()
    {
        addRows<SendReport, int, int, Utf8>({ "answer", "asked", "uploads", "left" },
            { { "no", SendReport::No, 2, 0, "crash-1.refused.txt crash-2.refused.txt" },
                { "yes", SendReport::Yes, 2, 2, "crash-1.sent.txt crash-2.sent.txt" },
                { "always", SendReport::Always, 1, 2, "crash-1.sent.txt crash-2.sent.txt" } });
    }
    void upload_followsTheAnswer()
    {
        QFETCH(SendReport, answer);
        QFETCH(int, uploads);
        QFETCH(QString, left);
        leaveReport(1);
        leaveReport(2);
        QTEST(ask(answer), "asked");
        QTRY_COMPARE(files(), left);
        QCOMPARE(m_server->requests.size(), uploads);
        for (int number = 1; number <= uploads; ++number)
            QVERIFY(m_server->wasSent("report " + QByteArray::number(number)));
        QCOMPARE(ask(SendReport::Yes), 0);
        QCOMPARE(
            Defaults::value(u"CrashReportsAlwaysSend"_s).toBool(), answer == SendReport::Always);
    }

    void upload_isTriedAgainWithoutAsking()
    {
        leaveReport(1);
        int count = 0;
        for (const QByteArray status : { "503 Service Unavailable", "302 Found", "200 OK" }) {
            m_server->answers["/crash"] = { .status = status, .headers = "Location: /moved\r\n" };
            QCOMPARE(ask(SendReport::Yes), count++ == 0 ? 1 : 0);
            QTRY_COMPARE(m_server->requests.size(), count);
            QTRY_COMPARE(files(), count < 3 ? u"crash-1.agreed.txt"_s : u"crash-1.sent.txt"_s);
        }
    }

    void upload_needsServiceAndLeave()
    {
        Defaults::setValue(u"CrashReportsAlwaysSend"_s, true);
        leaveReport(1);
        CrashReports session;
        qputenv("DO_NOT_TRACK", "1");
        QCOMPARE(ask(SendReport::Always), 0);
        session.beginSession();
        qunsetenv("DO_NOT_TRACK");
        qunsetenv("VIDEO_CONVERTER_CRASH_URL");
        QCOMPARE(ask(SendReport::Always), 0);
        session.beginSession();
        QTest::qWait(200); // Nothing comes; there is no event to wait for.
        QVERIFY(m_server->requests.isEmpty());
        QCOMPARE(files(), u"crash-1.txt"_s);
    }

    void session_tellsHowTheLastOneEnded()
    {
        Defaults::setValue(u"CrashReportsAlwaysSend"_s, true);
        for (const QByteArray event : { "no clean end", "clean end" }) {
            m_server->requests.clear();
            CrashReports first;
            first.beginSession();
            QTRY_VERIFY(!m_server->requests.isEmpty());
            if (event == "clean end")
                Q_EMIT qApp->aboutToQuit({});
            const QByteArray start = m_server->requests.last().body;
            CrashReports second;
            second.beginSession();
            const QByteArray end = QByteArray(start).replace("Event: start", "Event: " + event);
            QTRY_VERIFY2(m_server->wasSent(end), end.constData());
        }
    }

    void answer_isThatOfTheButton()
    {
        const std::pair<QString, SendReport> answers[]{ { u"Send"_s, SendReport::Yes },
            { u"Always Send"_s, SendReport::Always }, { u"Don't Send"_s, SendReport::No },
            { u"Escape"_s, SendReport::No } };
        for (const auto &[button, answer] : answers) {
            QTimer::singleShot(0, this, [button = button] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                for (QAbstractButton *each : box->buttons()) {
                    if (each->text() == button)
                        return each->click();
                }
                QTest::keyClick(box, Qt::Key_Escape);
            });
            QCOMPARE(
                askToSendReport(nullptr, u"Reason: SIGSEGV\nStack:\n  0 program+0x1\n"_s), answer);
        }
    }
};

QTEST_MAIN(tst_CrashReports)
#include "tst_crashreports.moc"
