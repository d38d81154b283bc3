// SPDX-License-Identifier: MIT
#include "engine/Task.h"
#include "support/Bundle.h"
#include "tests/fixtures/ToolSwap.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>
#include <sys/socket.h>

using namespace Qt::StringLiterals;

class TestSandbox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tool_isRefusedWhatItDoesNotNeed_data();
    void tool_isRefusedWhatItDoesNotNeed();
};

void TestSandbox::initTestCase()
{
    if (!Sandbox(u"/usr/bin/ffmpeg"_s, {}).isConfining())
        QSKIP("this kernel offers no sandbox");
}

void TestSandbox::tool_isRefusedWhatItDoesNotNeed_data()
{
    QTest::addColumn<QByteArray>("attempt");
    QTest::addColumn<QByteArray>("answer");
    const QByteArray allowed = "allowed ";
    const QByteArray refused = "Permission denied ";
    QTest::newRow("reads the source") << QByteArray("read:SOURCE/film.mp4") << allowed;
    QTest::newRow("reads the source's neighbour") << QByteArray("read:SOURCE/diary.txt") << refused;
    QTest::newRow("writes the source") << QByteArray("write:SOURCE/film.mp4") << refused;
    QTest::newRow("writes the result") << QByteArray("write:DEST/result.mp4") << allowed;
    QTest::newRow("reads the destination") << QByteArray("read:DEST/other.txt") << refused;
    QTest::newRow("lists the home folder")
        << QByteArray("read:") + QDir::homePath().toUtf8() << refused;
    QTest::newRow("reads in the home folder") << QByteArray("read:HOME/secret") << refused;
    QTest::newRow("writes to the home folder") << QByteArray("write:HOME/secret") << refused;
    QTest::newRow("writes to the temporary folder")
        << QByteArray("write:TEMP/elsewhere") << refused;
    QTest::newRow("reads the users") << QByteArray("read:/etc/passwd") << refused;
    QTest::newRow("reads a library") << QByteArray("read:/usr/bin/env") << allowed;
    QTest::newRow("runs a program of the user's") << QByteArray("exec:HOME/program") << refused;
    QTest::newRow("IPv4 socket") << "socket:" + QByteArray::number(AF_INET) << refused;
    QTest::newRow("IPv6 socket") << "socket:" + QByteArray::number(AF_INET6) << refused;
    QTest::newRow("local socket") << "socket:" + QByteArray::number(AF_UNIX) << refused;
}

void TestSandbox::tool_isRefusedWhatItDoesNotNeed()
{
    QFETCH(QByteArray, attempt);
    QTemporaryDir source;
    QTemporaryDir dest;
    QTemporaryDir home;
    const auto fill = [](const QString &path) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    };
    for (const QString &path : { source.filePath(u"film.mp4"_s), source.filePath(u"diary.txt"_s),
             dest.filePath(u"other.txt"_s), home.filePath(u"secret"_s),
             home.filePath(u"program"_s) })
        fill(path);
    attempt.replace("SOURCE", QFile::encodeName(source.path()));
    attempt.replace("DEST", QFile::encodeName(dest.path()));
    attempt.replace("HOME", QFile::encodeName(home.path()));
    attempt.replace("TEMP", QFile::encodeName(QDir::tempPath()));
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, attempt);
    Task task;
    task.setLaunchPath(Bundle::main().bundlePath() + u"/Contents/ffmpeg/ffmpeg"_s);
    task.setAccess({ { source.filePath(u"film.mp4"_s) }, { dest.path() } });
    task.launch();
    QTEST(task.readDataToEndOfFile(), "answer");
}

QTEST_GUILESS_MAIN(TestSandbox)
#include "tst_sandbox.moc"
