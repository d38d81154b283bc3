// SPDX-License-Identifier: MIT
#include "tests/fixtures/Folder.h"
#include "tests/fixtures/Rows.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// The functions of the frames that lie in the program itself, named by the debugger's own tool.
QString functions(const QByteArray &report)
{
    static const QRegularExpression frame(u" program\\+(0x[0-9a-f]+)\n"_s);
    QStringList arguments{ u"-Cfse"_s, QStringLiteral(CRASHER) };
    for (const QRegularExpressionMatch &match : frame.globalMatch(QString::fromUtf8(report)))
        arguments.append(match.captured(1));
    QProcess tool;
    tool.start(u"addr2line"_s, arguments);
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput());
}

}

/// Real crashes of a real child process.
class tst_Crash : public QObject {
    Q_OBJECT

private:
    int m_status = 0; // As a shell has it: 128 and the signal.
    QByteArrayList m_reports;

    void crash(const QString &way)
    {
        const Folder data;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, data.path(u"home user"_s));
        QProcess crasher;
        crasher.setProcessEnvironment(environment);
        crasher.setWorkingDirectory(data.path()); // For a core file, if any.
        crasher.start(QStringLiteral(CRASHER), { way, u"/home/user/Secret Video.mp4"_s });
        QVERIFY(crasher.waitForFinished(20000));
        m_status = crasher.exitCode() + (crasher.exitStatus() == QProcess::CrashExit ? 128 : 0);
        m_reports.clear();
        const QString folder = data.path(u"home user/VideoConverter/crash reports"_s);
        const auto own = QFile::ReadUser | QFile::WriteUser | QFile::ReadOwner | QFile::WriteOwner;
        for (const QFileInfo &info : QDir(folder).entryInfoList(QDir::Files)) {
            m_reports.append(
                data.contents(u"home user/VideoConverter/crash reports/"_s + info.fileName()));
            QCOMPARE(info.permissions(), own);
            QCOMPARE(QFile::permissions(folder), own | QFile::ExeUser | QFile::ExeOwner);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("a sanitizer handles crashes itself");
#endif
    }

    void crash_leavesAReportAndItsSignal_data()
    {
        addRows<int, Utf8, Utf8>({ "status", "reason", "function" },
            { { "segv", 128 + SIGSEGV, "SIGSEGV", "crashSegv()" },
                { "trap", 128 + SIGILL, "SIGILL (trap stop)", "crashTrap()" },
                { "exception", 128 + SIGABRT, "SIGABRT", "crashException()" },
                { "stack", 128 + SIGSEGV, "SIGSEGV", "crashDeep(int)" },
                { "threads", 128 + SIGSEGV, "SIGSEGV", "crashSegv()" },
                { "earlier", 9, "SIGSEGV", "crashSegv()" } });
    }
    void crash_leavesAReportAndItsSignal()
    {
        QFETCH(QString, reason);
        QFETCH(QString, function);
        const QByteArray way = QTest::currentDataTag();
        crash(QString::fromLatin1(way));
        QTEST(m_status, "status");
        QCOMPARE(m_reports.size(), 1);
        const QByteArray &report = m_reports.first();
        for (const char *part : { "\nVersion: 1.", "\nSystem: " })
            QVERIFY2(report.contains(part), report.constData());
        QVERIFY2(report.contains("\nReason: " + reason.toLatin1()), report.constData());
        QCOMPARE(report.contains("\nUncaught exception: std::runtime_error\n"), way == "exception");
        QVERIFY2(report.endsWith("End of report\n"), report.constData());
        QVERIFY2(functions(report).contains(function), report.constData());
        for (const char *secret : { "/home", "user", "Secret", "mp4", CRASHER, "/lib" })
            QVERIFY2(!report.contains(secret), report.constData());
    }

    void oddCrash_endsAllTheSame()
    {
        crash(u"locked"_s);
        QCOMPARE(m_status, 128 + SIGSEGV);
        QVERIFY(m_reports.value(0).contains("Reason: SIGSEGV"));
        crash(u"child"_s);
        QCOMPARE(m_status, 7);
        QCOMPARE(m_reports, QByteArrayList());
    }
};

QTEST_GUILESS_MAIN(tst_Crash)
#include "tst_crash.moc"
