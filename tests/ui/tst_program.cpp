// SPDX-License-Identifier: MIT
#include "tests/fixtures/Media.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// The program as it is started by a shell, a file manager or a second time.
class tst_program : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_video = m_folder.filePath(u"video.mov"_s);

    void start(QProcess &program, const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_folder.path());
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(m_folder.path());
        program.start(QStringLiteral(VC_PROGRAM), arguments);
    }

    /// The console tells of the cover that is taken from each video.
    static bool hasExamined(QProcess &program, const QByteArray &video, QByteArray &console)
    {
        return QTest::qWaitFor(
            [&] {
                console += program.readAllStandardOutput();
                return console.contains("from '" + video + "'");
            },
            20000);
    }

private Q_SLOTS:
    void initTestCase() { Media::video(m_video, 2); }

    void secondStart_handsItsFileOver()
    {
        QProcess first;
        QByteArray console;
        start(first, {});
        QVERIFY(first.waitForReadyRead());
        QProcess second;
        start(second, { u"./video.mov"_s });
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(hasExamined(first, m_video.toUtf8(), console));
        first.terminate();
        QVERIFY(first.waitForFinished());
        // Ended by itself, not by the signal: what it has begun is cleaned up.
        QCOMPARE(first.exitStatus(), QProcess::NormalExit);
        QCOMPARE(first.exitCode(), 128 + SIGTERM);
    }

    void video_isGivenOnTheCommandLine()
    {
        QProcess program;
        QByteArray console;
        start(program, { u"video.mov"_s });
        QVERIFY(hasExamined(program, m_video.toUtf8(), console));
        program.terminate();
        QVERIFY(program.waitForFinished());
    }
};

QTEST_GUILESS_MAIN(tst_program)
#include "tst_program.moc"
