// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// The functions of the frames that lie in the program itself, named by the debugger's own tool.
QString functions(const QByteArray &report)
{
    static const QRegularExpression frame(
        u"^  [0-9]+ program\\+(0x[0-9a-f]+)$"_s, QRegularExpression::MultilineOption);
    QStringList arguments{ u"-C"_s, u"-s"_s, u"-f"_s, u"-e"_s, QStringLiteral(CRASHER) };
    auto frames = frame.globalMatch(QString::fromUtf8(report));
    while (frames.hasNext())
        arguments.append(frames.next().captured(1));
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
    struct End {
        int status = 0; // As a shell has it: 128 and the signal.
        QList<QByteArray> reports;
    };

    /// Crashes in the way that the row names.
    static End crash()
    {
        const QTemporaryDir data;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, data.filePath(u"home user"_s));
        QProcess crasher;
        crasher.setProcessEnvironment(environment);
        crasher.setWorkingDirectory(data.path()); // For a core file, if any.
        crasher.start(QStringLiteral(CRASHER),
            { QString::fromLatin1(QTest::currentDataTag()), u"/home/user/Secret Video.mp4"_s });
        if (!crasher.waitForFinished(20000))
            return {};
        const int signal = crasher.exitStatus() == QProcess::CrashExit ? 128 : 0;
        End end{ .status = signal + crasher.exitCode(), .reports = {} };
        const QString folder = data.filePath(u"home user/VideoConverter/crash reports"_s);
        const auto others
            = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        for (const QFileInfo &info : QDir(folder).entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            if (file.open(QIODevice::ReadOnly))
                end.reports.append(file.readAll());
            if ((QFile::permissions(folder) | file.permissions()) & others)
                end.reports.append("others may read " + info.fileName().toUtf8());
        }
        return end;
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
        addRows<int, Utf8, Utf8>({ "signal", "reason", "function" },
            { { "segv", SIGSEGV, "Reason: SIGSEGV", "crashSegv()" },
                { "abort", SIGABRT, "Reason: SIGABRT", "main" },
                { "trap", SIGILL, "Reason: SIGILL (trap stop)", "crashTrap()" },
                { "fpe", SIGFPE, "Reason: SIGFPE", "main" },
                { "exception", SIGABRT, "Uncaught exception: std::runtime_error\n",
                    "crashException()" },
                { "stack", SIGSEGV, "Reason: SIGSEGV", "crashDeep(int)" },
                { "threads", SIGSEGV, "Reason: SIGSEGV", "crashSegv()" } });
    }
    void crash_leavesAReportAndItsSignal()
    {
        QFETCH(int, signal);
        QFETCH(QString, reason);
        QFETCH(QString, function);
        const End end = crash();
        QCOMPARE(end.status, 128 + signal);
        QCOMPARE(end.reports.size(), 1);
        const QByteArray &report = end.reports.first();
        for (const QByteArray &part :
            { reason.toUtf8(), QByteArray("\nVersion: 1."), QByteArray("\nSystem: ") })
            QVERIFY2(report.contains(part), report.constData());
        QVERIFY2(report.endsWith("End of report\n"), report.constData());
        QVERIFY2(functions(report).contains(function), report.constData());
        for (const char *secret :
            { "/home", "home user", "Secret", "user", "mp4", CRASHER, "/lib" })
            QVERIFY2(!report.contains(secret), report.constData());
    }

    void oddCrash_endsAsItWouldWithoutReport_data()
    {
        addRows<int, int>({ "status", "reports" },
            { { "earlier", 9, 1 }, { "child", 7, 0 }, { "locked", 128 + SIGSEGV, 1 } });
    }
    void oddCrash_endsAsItWouldWithoutReport()
    {
        QFETCH(const int, reports);
        const End end = crash();
        QTEST(end.status, "status");
        QCOMPARE(end.reports.size(), reports);
        for (const QByteArray &report : end.reports)
            QVERIFY2(report.contains("Reason: SIGSEGV"), report.constData());
    }
};

QTEST_GUILESS_MAIN(tst_Crash)
#include "tst_crash.moc"
