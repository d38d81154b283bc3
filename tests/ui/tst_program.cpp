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

    void start(QProcess &program, const QString &video) const
    {
        program.setWorkingDirectory(m_folder.path());
        program.start(QStringLiteral(VC_PROGRAM), { video });
    }

private Q_SLOTS:
    void everyStart_opensItsVideoInOneWindow()
    {
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
        QProcess first;
        QByteArray console;
        // The console tells of the cover that is taken from each video.
        const auto hasExamined = [&](const QString &name) {
            console += first.readAllStandardOutput();
            return console.contains("from '" + (m_folder.path() + u'/' + name).toUtf8() + '\'');
        };
        Media::video(m_folder.filePath(u"video.mov"_s), 2);
        Media::video(m_folder.path() + u"/:next.mov"_s, 2);
        start(first, u"video.mov"_s);
        QTRY_VERIFY_WITH_TIMEOUT(hasExamined(u"video.mov"_s), 20000);
        QProcess second;
        start(second, u":next.mov"_s);
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(hasExamined(u":next.mov"_s), 20000);
        first.terminate();
        QVERIFY(first.waitForFinished());
        // Ended by itself, not by the signal: what it has begun is cleaned up.
        QCOMPARE(first.exitCode(), 128 + SIGTERM);
    }
};

QTEST_GUILESS_MAIN(tst_program)
#include "tst_program.moc"
