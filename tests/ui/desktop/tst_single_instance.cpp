// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "ui/desktop/SingleInstance.h"

#include <QDir>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <array>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

/// A start of the program, in a thread of its own.
class Start : public QThread {
public:
    explicit Start(const QStringList &files = {})
        : m_files(files)
    {
        start();
    }
    ~Start() override
    {
        quit();
        wait();
    }

    std::atomic<bool> runs = false;
    std::atomic<bool> handedOver = false;
    QList<QStringList> received;

private:
    void run() override
    {
        SingleInstance instance;
        connect(&instance, &SingleInstance::filesReceived, this,
            [this](const QStringList &paths) { received << paths; });
        handedOver = instance.handOver(m_files);
        runs = !handedOver;
        if (runs)
            exec();
    }

    QStringList m_files;
};

}

class tst_single_instance : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    const QStringList m_files{ u"/videos/a.mp4"_s };

    /// The only socket in the folder.
    QString socket() const
    {
        const QDir folder(m_folder.path());
        const QStringList names = folder.entryList({ u"video-converter-*"_s }, QDir::System);
        return names.size() == 1 ? folder.filePath(names.constFirst()) : QString();
    }

private Q_SLOTS:
    void init()
    {
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
        qputenv("DISPLAY", ":1");
    }

    void secondStart_handsFilesOver()
    {
        const Start first;
        QTRY_VERIFY(first.runs);
        const QString odd = u"/f/new\nline \u00fc\"%d.mp4"_s;
        const QStringList expected{ u"/videos/a.mp4"_s, odd };
        const Start second(expected);
        QTRY_VERIFY(second.handedOver);
        QTRY_COMPARE(first.received.value(0), expected);
        const Start third;
        QTRY_COMPARE(first.received.value(1, m_files), QStringList());

        qputenv("DISPLAY", ":2");
        const Start elsewhere(m_files);
        QTRY_VERIFY(elsewhere.runs);
        QCOMPARE(first.received.size(), 2);
    }

    void killedInstance_leavesNoObstacle()
    {
        QString place;
        {
            const Start killed;
            QTRY_VERIFY(killed.runs);
            place = socket();
            // Away from its place the socket outlives the one who listens to it.
            QVERIFY(QFile::rename(place, m_folder.filePath(u"kept"_s)));
        }
        QVERIFY(QFile::rename(m_folder.filePath(u"kept"_s), place));
        const Start second;
        QTRY_VERIFY(second.runs);
        const Start third(m_files);
        QTRY_COMPARE(second.received.value(0), m_files);
    }

    void startsAtOnce_leaveOneRunning()
    {
        const std::array<Start, 4> starts;
        int running = 0;
        for (const Start &start : starts) {
            QTRY_VERIFY(start.runs || start.handedOver);
            running += start.runs ? 1 : 0;
        }
        QCOMPARE(running, 1);
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
        const Start first;
        QTRY_VERIFY(first.runs);
        QLocalSocket peer;
        peer.connectToServer(socket());
        QVERIFY(peer.waitForConnected());
        peer.write(request);
        QTRY_COMPARE(peer.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(peer.readAll(), QByteArray());
        const Start second(m_files);
        QTRY_COMPARE(first.received.value(0), m_files);
    }
};

QTEST_GUILESS_MAIN(tst_single_instance)
#include "tst_single_instance.moc"
