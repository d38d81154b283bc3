// SPDX-License-Identifier: MIT
#include "engine/Async.h"
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "support/Console.h"
#include "support/MainQueue.h"
#include "tests/fixtures/Folder.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

/// A conversion by whatever tool the bundle has, with all that it reports.
class Conversion {
public:
    Conversion(const QString &path, const QString &destPath)
        : progress(FFMPEG::convertFile(
            path, destPath, mp4, JSON(), [this](const std::optional<QString> &errmsg) {
                errors += QThread::currentThread() == QCoreApplication::instance()->thread()
                    ? errmsg.value_or(u"(none)"_s)
                    : u"on the wrong thread"_s;
            }))
    {
        progress->addObserver(Progress::Key::CompletedUnitCount, this, [this](Progress::Key) {
            const bool wrong = QThread::currentThread() == QCoreApplication::instance()->thread();
            const qint64 step = progress->completedUnitCount();
            MainQueue::post([=, this] { steps << (wrong ? u"wrong"_s : QString::number(step)); });
        });
    }

    // Ends in the event loop, so that posted answers have arrived too.
    void wait() const
    {
        QTRY_VERIFY_WITH_TIMEOUT(progress->isEnded(), 20'000);
        SerialQueue::waitForAll();
        QCoreApplication::processEvents();
    }

    const VideoConstraints mp4{ VideoDimensionsConstraints::unlimited(),
        VideoQualityConstraints::unchanged, ConversionFormat::mp4, u"MP4"_s };
    QStringList errors;
    QStringList steps;
    std::shared_ptr<Progress> progress;
};

}

class TestConversion : public QObject, private Folder {
    Q_OBJECT

    const QString m_length = uR"(print:  Duration: 00:01:40.00, start: 0.000000\n)"_s;
    QStringList m_lines;

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink(
            [this](const QString &line) { MainQueue::post([=, this] { m_lines << line; }); });
    }

    void init()
    {
        write(u"in.mov"_s, "the video");
        m_lines.clear();
    }

    void cleanup()
    {
        QCOMPARE(contents(u"in.mov"_s), "the video");
        QFile::remove(path(u"out.mp4"_s));
        QCOMPARE(Processes::children(), QStringList());
    }

    // Output comes in chunks with '|' between; @10 is a report of second 10.
    void progress_followsTheOutput_data()
    {
        addRows<Utf8, Utf8, int, int, Utf8>({ "output", "steps", "lastDelta", "left", "error" },
            { { "last report of a chunk", "LENGTH|@10@60|@99", "60 99 100", -39, 1, "" },
                { "report beyond the end", "LENGTH|@50|@120", "50 100 100", -50, 0, "" },
                { "too early to count", "@90|LENGTH", "100", 0, 100, "0s" },
                { "one report explains nothing", "LENGTH|@7|@7", "7 7 100", 0, 93, "7s" },
                { "5 explain 10 that are left", "LENGTH|@85|@90", "85 90 100", -5, 10, "" },
                { "4 do not", "LENGTH|@86|@90", "86 90 100", -4, 10, "1m 30s" },
                { "length cut", "Duration: 00:0|1:40, start: 0|@100", "100 100", -100, 0, "" },
                { "length in a title",
                    "    title : Duration: 99999999999999999:0, start:\\nLENGTH|@100", "100 100",
                    -100, 0, "" },
                { "position in a title",
                    "LENGTH    tit|le : time=9999999999999999:00:00 bitrate\\n@100", "100 100",
                    -100, 0, "" },
                { "position beyond 64 bits", "LENGTHtime=9999999999999999:00:00 bitrate\\n|@100",
                    "100 100", -100, 0, "" },
                { "length unknown", "Duration: N/A, start: 0|@90", "-1", 0, -1, "" } });
    }
    void progress_followsTheOutput()
    {
        QFETCH(QString, output);
        QFETCH(const QString, steps);
        QFETCH(const int, lastDelta);
        QFETCH(const int, left);
        QFETCH(const QString, error);
        static const QRegularExpression report(u"@(\\d+)"_s);
        output.replace(u"LENGTH"_s, m_length.mid(6))
            .replace(report, uR"(time=00:00:\1.50 bitrate= 1kbits/s\\r)"_s)
            .replace(u"|"_s, u"|sleep:150|print:"_s);
        // A name that reads like a failure is none.
        const QString name = path(u"a\nError closing file.mp4"_s);
        output.prepend(u"output|print:Output to '"_s + QString(name).replace(u"\n"_s, uR"(\n)"_s)
            + uR"('\n|sleep:150|print:)"_s);
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, output.toUtf8());
        const Conversion conversion(path(u"in.mov"_s), name);
        QCOMPARE(conversion.progress->totalUnitCount(), qint64{ -1 });
        QCOMPARE(conversion.progress->kind(), Progress::Kind::File);
        conversion.wait();
        QCOMPARE(conversion.steps.join(u' '), steps);
        QCOMPARE(conversion.progress->totalUnitCount(), conversion.progress->completedUnitCount());
        QCOMPARE(m_lines.value(0), u"last delta: %1, last pos: %2"_s.arg(lastDelta).arg(left));
        QCOMPARE(m_lines.value(1),
            error.isEmpty() ? QString()
                            : u"conversion of bad file, not all length has been processed"_s);
        QCOMPARE(conversion.errors.join(u'\n'),
            error.isEmpty() ? QString() : u"The converting progress was finished at "_s + error);
        QVERIFY(QFile::exists(name) && !conversion.progress->isCancelled());
    }

    void failure_isReportedAndCleanedUp()
    {
        // Of a full disk the tool itself may end with status 0.
        for (const QString &end : { u"exit:1"_s, u"signal:11"_s,
                 u"print:size=1kB\\rError writing trailer of /out.mp4: No space left\\n"_s }) {
            const QString script
                = m_length + u"|output|reports:1:0|print:No space left\\n|"_s + end;
            const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script.toUtf8());
            const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
            conversion.wait();
            QCOMPARE(conversion.errors, QStringList{ u"(none)"_s });
            QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
            QVERIFY(!conversion.progress->isCancelled());
            QVERIFY(conversion.progress->toolOutput().endsWith("No space left\n"));
            const QString last = m_lines.constLast();
            QVERIFY2(last.startsWith(u"error occured: "_s) && last.contains(u"No space left"_s),
                qPrintable(last));
        }
    }

    void launchFailure_looksCancelled()
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::Nothing);
        QVERIFY(QFile::copy(path(u"in.mov"_s), path(u"out.mp4"_s)));
        const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
        conversion.wait();
        QVERIFY(conversion.progress->isCancelled());
        QCOMPARE(conversion.errors, QStringList());
        QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
        QCOMPARE(m_lines.size(), 1);
        QVERIFY(m_lines.constFirst().startsWith(u"something bad happened: "_s));
    }

    void cancel_isPromptAndLeavesNothing()
    {
        for (const QString &script :
            { u"output|forever"_s, u"output|"_s + m_length + u"|reports:100000000:1000"_s,
                u"output|flood:100000000000"_s, u"deaf|output|forever"_s,
                u"deaf|output|flood:100000000000"_s }) {
            const bool isDeaf = script.startsWith(u"deaf");
            const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script.toUtf8());
            const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
            QTRY_VERIFY(!contents(u"out.mp4"_s).isEmpty());
            QElapsedTimer timer;
            timer.start();
            conversion.progress->cancel();
            conversion.wait();
            const qint64 time = timer.elapsed();
            QVERIFY2(time >= (isDeaf ? 2900 : 0) && time < (isDeaf ? 6000 : 2000),
                qPrintable(u"%1: %2"_s.arg(script).arg(time)));
            QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
            QCOMPARE(conversion.errors, QStringList());
            QCOMPARE(Processes::children(), QStringList());
        }
    }

    void destination_isRefused()
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|exit:1");
        const Conversion conversion(path(u"in.mov"_s), path(u"in.mov"_s));
        conversion.wait();
        QCOMPARE(conversion.errors,
            QStringList{ u"The result can't replace a video that is to be converted."_s });
        QCOMPARE(conversion.progress->toolOutput(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestConversion)
#include "tst_conversion.moc"
