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
QStringList functions(const QByteArray &report)
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
    return QString::fromUtf8(tool.readAllStandardOutput()).split(u'\n');
}

}

/// Real crashes of a real child process.
class tst_Crash : public QObject {
    Q_OBJECT

private:
    struct End {
        int signal = 0;
        int exitCode = 0;
        QByteArray output;
        QList<QByteArray> reports;
    };

    static End run(const QString &kind)
    {
        const QTemporaryDir data;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, data.filePath(u"home user"_s));
        QProcess crasher;
        crasher.setProcessEnvironment(environment);
        crasher.setWorkingDirectory(data.path()); // For a core file, if any.
        crasher.start(QStringLiteral(CRASHER), { kind, u"/home/user/Secret Video.mp4"_s });
        End end;
        if (!crasher.waitForFinished(20000))
            return end;
        (crasher.exitStatus() == QProcess::CrashExit ? end.signal : end.exitCode)
            = crasher.exitCode();
        end.output = crasher.readAllStandardOutput();
        const QDir folder(data.filePath(u"home user/VideoConverter/crash reports"_s));
        const auto files = folder.entryInfoList(QDir::Files);
        for (const QFileInfo &info : files) {
            QFile file(info.filePath());
            if (file.open(QIODevice::ReadOnly))
                end.reports.append(file.readAll());
            const auto all
                = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
            if ((QFile::permissions(folder.path()) & all) || (file.permissions() & all))
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
                { "abort", SIGABRT, "Reason: SIGABRT", "crashAbort()" },
                { "trap", SIGILL, "Reason: SIGILL (trap stop)", "crashTrap()" },
                { "fpe", SIGFPE, "Reason: SIGFPE", "crashFpe()" },
                { "exception", SIGABRT, "Uncaught exception: std::runtime_error\n",
                    "crashException()" },
                { "stack", SIGSEGV, "Reason: SIGSEGV", "crashStack(int)" },
                { "threads", SIGSEGV, "Reason: SIGSEGV", "crashSegv()" },
                { "malloc", SIGSEGV, "Reason: SIGSEGV", "crashMalloc()" } });
    }
    void crash_leavesAReportAndItsSignal()
    {
        QFETCH(QString, reason);
        QFETCH(QString, function);
        const End end = run(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(end.signal, "signal");
        QCOMPARE(end.reports.size(), 1);
        const QByteArray &report = end.reports.first();
        QVERIFY2(report.contains(reason.toUtf8()), report.constData());
        QVERIFY2(
            report.contains("\nVersion: 1.") && report.contains("\nSystem: "), report.constData());
        QVERIFY2(report.endsWith("End of report\n"), report.constData());
        QVERIFY2(functions(report).join(u' ').contains(function), report.constData());
        for (const char *secret :
            { "/home", "home user", "Secret", "user", "mp4", CRASHER, "/lib" })
            QVERIFY2(!report.contains(secret), report.constData());
    }

    void signal_isHandedOn_data()
    {
        addRows<int, int>({ "exitCode", "reports" }, { { "earlier", 9, 1 }, { "child", 7, 0 } });
    }
    void signal_isHandedOn()
    {
        QFETCH(const int, reports);
        const End end = run(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(end.exitCode, "exitCode");
        QCOMPARE(end.reports.size(), reports);
    }

    void crash_thatCannotBeUnwoundEndsAllTheSame()
    {
        const End end = run(u"locked"_s);
        QCOMPARE(end.signal, SIGSEGV);
        QCOMPARE(end.reports.size(), 1);
        QVERIFY(end.reports[0].contains("Reason: SIGSEGV"));
    }
};

QTEST_GUILESS_MAIN(tst_Crash)
#include "tst_crash.moc"
