// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "ui/desktop/SingleInstance.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <memory>
#include <pwd.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

/// What the program does at its start, with words instead of a window.
int runInstance(const QStringList &files)
{
    SingleInstance instance;
    QObject::connect(&instance, &SingleInstance::filesReceived, [](const QStringList &paths) {
        say(u"received "_s + paths.join(u'|').replace(u'\n', u'$'));
    });
    if (instance.handOver(files)) {
        say(u"handed over"_s);
        return 0;
    }
    say(u"running"_s);
    return QCoreApplication::exec();
}

struct Place {
    QString runtimeFolder;
    QString temporaryFolder;
    QString display = u":1"_s;
};

/// A second process of this program that runs runInstance().
class Instance {
public:
    explicit Instance(const Place &place, const QStringList &files = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s, place.display);
        environment.insert(u"XDG_RUNTIME_DIR"_s, place.runtimeFolder);
        environment.insert(u"TMPDIR"_s, place.temporaryFolder);
        process.setProcessEnvironment(environment);
        process.start(
            QCoreApplication::applicationFilePath(), QStringList{ u"--instance"_s } + files);
    }
    ~Instance()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Instance)

    QStringList lines()
    {
        m_output += process.readAllStandardOutput();
        return QString::fromUtf8(m_output).split(u'\n', Qt::SkipEmptyParts);
    }
    void signal(int number) const { ::kill(static_cast<pid_t>(process.processId()), number); }

    QProcess process;

private:
    QByteArray m_output;
};

QStringList running() { return { u"running"_s }; }
QStringList handedOver() { return { u"handed over"_s }; }

}

class TestSingleInstance : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    Place m_place;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_place = { .runtimeFolder = m_folder->path(), .temporaryFolder = m_folder->path() };
    }

    void secondStart_handsFilesOver_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("received");
        QTest::newRow("none") << QStringList() << QString();
        QTest::newRow("absolute") << QStringList{ u"/videos/a.mp4"_s, u"/videos/b.mp4"_s }
                                  << u"/videos/a.mp4|/videos/b.mp4"_s;
        QTest::newRow("relative") << QStringList{ u"a.mp4"_s } << u"%1/a.mp4"_s;
        QTest::newRow("odd") << QStringList{ u"/f/new\nline \u00fc\"%d.mp4"_s }
                             << u"/f/new$line \u00fc\"%d.mp4"_s;
    }
    void secondStart_handsFilesOver()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, received);
        Instance first(m_place);
        QTRY_COMPARE(first.lines(), running());
        Instance second(m_place, files);
        QTRY_COMPARE(second.lines(), handedOver());
        QTRY_COMPARE(first.lines().value(1),
            u"received "_s + received.replace(u"%1"_s, QDir::currentPath()));
        QTRY_COMPARE(second.process.state(), QProcess::NotRunning);
        QCOMPARE(second.process.exitCode(), 0);
    }

    void secondStart_onOtherDisplayRuns()
    {
        Instance first(m_place);
        QTRY_COMPARE(first.lines(), running());
        m_place.display = u":2"_s;
        Instance second(m_place, { u"/videos/a.mp4"_s });
        QTRY_COMPARE(second.lines(), running());
        QCOMPARE(first.lines(), running());
    }

    void secondStart_recoversFromKilledInstance()
    {
        Instance first(m_place);
        QTRY_COMPARE(first.lines(), running());
        first.signal(SIGKILL);
        QVERIFY(first.process.waitForFinished());
        Instance second(m_place);
        QTRY_COMPARE(second.lines(), running());
        Instance third(m_place, { u"/videos/a.mp4"_s });
        QTRY_COMPARE(third.lines(), handedOver());
        QTRY_COMPARE(second.lines().value(1), u"received /videos/a.mp4"_s);
    }

    void startsAtOnce_leaveOneRunning()
    {
        std::vector<std::unique_ptr<Instance>> instances;
        instances.reserve(4);
        for (int number = 0; number < 4; ++number)
            instances.push_back(std::make_unique<Instance>(m_place));
        for (const auto &instance : instances)
            QTRY_VERIFY(!instance->lines().isEmpty());
        const auto count
            = std::count_if(instances.cbegin(), instances.cend(), [](const auto &instance) {
                  return instance->lines().value(0) == running().constFirst();
              });
        QCOMPARE(count, 1);
    }

    void hostilePeer_isDropped_data()
    {
        addRows<QByteArray>({ "request" },
            { { "nonsense", QByteArray("\x00\xff\xfe nonsense\n", 13) }, { "empty line", "\n" },
                { "object", "{\"a\":1}\n" }, { "numbers", "[1,2]\n" },
                { "relative path", "[\"/videos/a.mp4\",\"b.mp4\"]\n" },
                { "deep", QByteArray(100000, '[') + '\n' },
                { "too long", QByteArray((1 << 20) + 2, 'x') } });
    }
    void hostilePeer_isDropped()
    {
        QFETCH(QByteArray, request);
        Instance first(m_place);
        QTRY_COMPARE(first.lines(), running());
        const QStringList sockets
            = QDir(m_folder->path()).entryList({ u"video-converter-*"_s }, QDir::System);
        QCOMPARE(sockets.size(), 1);
        QLocalSocket peer;
        peer.connectToServer(m_folder->filePath(sockets.constFirst()));
        QVERIFY(peer.waitForConnected());
        peer.write(request);
        QTRY_COMPARE(peer.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(peer.readAll(), QByteArray());
        Instance second(m_place, { u"/videos/a.mp4"_s });
        QTRY_COMPARE(second.lines(), handedOver());
        QTRY_COMPARE(first.lines().value(1), u"received /videos/a.mp4"_s);
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--instance")
        return runInstance(arguments.mid(2));
    TestSingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_single_instance.moc"
