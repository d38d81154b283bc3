// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/SerialQueue.h"
#include "support/Console.h"
#include "support/MainQueue.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <mutex>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Texts from several threads.
class Texts {
public:
    void add(const QString &text)
    {
        const std::lock_guard lock(m_mutex);
        m_texts += text;
    }
    QStringList take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_texts, {});
    }

private:
    std::mutex m_mutex;
    QStringList m_texts;
};

/// A conversion by whatever tool the bundle has, with all that it reports.
class Conversion {
public:
    Conversion(const QString &path, const QString &destPath)
        : progress(FFMPEG::convertFile(
            path, destPath, mp4, JSON(), [this](const std::optional<QString> &errmsg) {
                errors += MainQueue::isMainThread() ? errmsg.value_or(u"(none)"_s)
                                                    : u"on the wrong thread"_s;
            }))
    {
        progress->addObserver(Progress::Key::CompletedUnitCount, this, [this](Progress::Key) {
            steps.add(MainQueue::isMainThread() ? u"on the wrong thread"_s
                                                : QString::number(progress->completedUnitCount()));
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
    Texts steps;
    std::shared_ptr<Progress> progress;
};

}

class TestConversion : public QObject {
    Q_OBJECT

    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] QByteArray source() const
    {
        QFile file(path(u"in.mov"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QString m_length = uR"(print:  Duration: 00:01:40.00, start: 0.000000\n)"_s;
    std::unique_ptr<QTemporaryDir> m_folder;
    Texts m_lines;

private Q_SLOTS:
    void initTestCase()
    {
        Console::setSink([this](const QString &line) { m_lines.add(line); });
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QFile file(path(u"in.mov"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("the film") == 8);
        m_lines.take();
    }

    void cleanup()
    {
        QCOMPARE(source(), QByteArray("the film"));
        QCOMPARE(Processes::children(), QStringList());
    }

    // Output comes in chunks with '|' between; @10 is a report of second 10.
    void progress_followsTheOutput_data()
    {
        addRows<Utf8, Utf8, Utf8, Utf8>({ "output", "steps", "summary", "error" },
            {
                { "last report of a chunk wins", "LENGTH|@10@60|@99", "60 99 100",
                    "last delta: -39, last pos: 1", "" },
                { "report beyond the end", "LENGTH|@50|@120", "50 100 100",
                    "last delta: -50, last pos: 0", "" },
                { "reports before the length do not count", "@90|LENGTH", "100",
                    "last delta: 0, last pos: 100", "0s" },
                { "one report explains nothing", "LENGTH|@7|@7", "7 7 100",
                    "last delta: 0, last pos: 93", "7s" },
                { "step of 5 explains 10 that are left", "LENGTH|@85|@90", "85 90 100",
                    "last delta: -5, last pos: 10", "" },
                { "step of 4 does not", "LENGTH|@86|@90", "86 90 100",
                    "last delta: -4, last pos: 10", "1m 30s" },
                { "length cut", "Duration: 00:0|1:40.00, start: 0\\n|@100", "100 100",
                    "last delta: -100, last pos: 0", "" },
                { "bad byte beside the length", "title: \\xD0\\nLENGTH|@100", "100 100",
                    "last delta: -100, last pos: 0", "" },
                { "length unknown", "Duration: N/A, start: 0\\n|@90", "-1",
                    "last delta: 0, last pos: -1", "" },
                { "nothing said", "", "-1", "last delta: 0, last pos: -1", "" },
            });
    }
    void progress_followsTheOutput()
    {
        QFETCH(QString, output);
        QFETCH(const QString, steps);
        QFETCH(const QString, error);
        static const QRegularExpression report(u"@(\\d+)"_s);
        output.replace(u"LENGTH"_s, m_length.mid(6))
            .replace(report, uR"(time=00:00:\1.50 bitrate= 1kbits/s\\r)"_s)
            .replace(u"|"_s, u"|sleep:150|print:"_s);
        const ToolSwap swap(
            u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|sleep:150|print:" + output.toUtf8());
        Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
        QCOMPARE(conversion.progress->totalUnitCount(), qint64{ -1 });
        QCOMPARE(conversion.progress->kind(), Progress::Kind::File);
        conversion.wait();
        QCOMPARE(conversion.steps.take().join(u' '), steps);
        QCOMPARE(conversion.progress->totalUnitCount(), conversion.progress->completedUnitCount());
        const QStringList lines = m_lines.take();
        QTEST(lines.value(0), "summary");
        QCOMPARE(lines.value(1),
            error.isEmpty() ? QString()
                            : u"conversion of bad file, not all length has been processed"_s);
        QCOMPARE(conversion.errors.join(u'\n'),
            error.isEmpty() ? QString() : u"The converting progress was finished at "_s + error);
        QVERIFY(QFile::exists(path(u"out.mp4"_s)));
        QVERIFY(!conversion.progress->isCancelled());
    }

    void failure_isReportedAndCleanedUp_data()
    {
        addRows<Utf8>({ "end" },
            {
                { "exit status", "exit:1" },
                { "killed", "signal:9" },
                { "crashed", "signal:11" },
                { "result cut off by a full disk, status 0",
                    "print:size=1kB\\rError writing trailer of /out.mp4: No space left\\n" },
            });
    }
    void failure_isReportedAndCleanedUp()
    {
        QFETCH(const QString, end);
        const QString script = m_length + u"|output|reports:1:0|print:No space left\\n|"_s + end;
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script.toUtf8());
        const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
        conversion.wait();
        QCOMPARE(conversion.errors, QStringList{ u"(none)"_s });
        QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
        QVERIFY(!conversion.progress->isCancelled());
        QVERIFY(conversion.progress->toolOutput().endsWith("No space left\n"));
        const QString last = m_lines.take().constLast();
        QVERIFY2(last.startsWith(u"error occured: "_s) && last.contains(u"No space left"_s),
            qPrintable(last));
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
        const QStringList lines = m_lines.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.constFirst().startsWith(u"something bad happened: "_s));
    }

    void cancel_isPromptAndLeavesNothing_data()
    {
        addRows<Utf8, int, int>({ "script", "leastTime", "mostTime" },
            {
                { "silent", "output|forever", 0, 2000 },
                { "talking", "output|LENGTH|reports:100000000:1000", 0, 2000 },
                { "flooding", "output|flood:100000000000", 0, 2000 },
                { "deaf", "deaf|output|forever", 2900, 6000 },
                { "deaf and flooding", "deaf|output|flood:100000000000", 2900, 6000 },
            });
    }
    void cancel_isPromptAndLeavesNothing()
    {
        QFETCH(QString, script);
        QFETCH(const int, leastTime);
        QFETCH(const int, mostTime);
        const ToolSwap swap(
            u"ffmpeg"_s, ToolSwap::With::FakeTool, script.replace(u"LENGTH"_s, m_length).toUtf8());
        const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
        QTRY_VERIFY(QFile::exists(path(u"out.mp4"_s)));
        QElapsedTimer timer;
        timer.start();
        conversion.progress->cancel();
        conversion.wait();
        QVERIFY2(timer.elapsed() >= leastTime && timer.elapsed() < mostTime,
            qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
        QCOMPARE(conversion.errors, QStringList());
        QCOMPARE(Processes::children(), QStringList());
    }

    void cancelInTheFirstMoments_leavesNothing()
    {
        // The real tool, told to stop while it starts, still creates its output.
        Media::film(path(u"film.mp4"_s), 20);
        for (int i = 0; i < 25; ++i) {
            const Conversion conversion(path(u"film.mp4"_s), path(u"out.mp4"_s));
            QThread::msleep(static_cast<unsigned long>(i) * 6);
            conversion.progress->cancel();
            conversion.wait();
            QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
            QCOMPARE(conversion.errors, QStringList());
        }
    }

    void sourceAsDestination_isRefused_data()
    {
        QTest::addColumn<QString>("spelling");
        for (const char *spelling :
            { "in.mov", "/in.mov", "./in.mov", "sub/../in.mov", "symlink.mp4", "hardlink.mp4" })
            QTest::newRow(spelling) << QString::fromLatin1(spelling);
    }
    void sourceAsDestination_isRefused()
    {
        QFETCH(const QString, spelling);
        QDir(m_folder->path()).mkdir(u"sub"_s);
        QVERIFY(QFile::link(path(u"in.mov"_s), path(u"symlink.mp4"_s)));
        QCOMPARE(::link(QFile::encodeName(path(u"in.mov"_s)).constData(),
                     QFile::encodeName(path(u"hardlink.mp4"_s)).constData()),
            0);
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "arguments");
        const Conversion conversion(path(u"in.mov"_s), m_folder->path() + u'/' + spelling);
        conversion.wait();
        QCOMPARE(conversion.errors.size(), 1);
        QVERIFY(conversion.errors.constFirst() != u"(none)"_s);
        QCOMPARE(conversion.progress->toolOutput(), QByteArray());
        QVERIFY(QFile::exists(path(u"symlink.mp4"_s)) && QFile::exists(path(u"hardlink.mp4"_s)));
    }

    void secondRunToOnePlace_waitsForTheFirst()
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "deaf|output|forever");
        QDir(m_folder->path()).mkdir(u"sub"_s);
        const Conversion first(path(u"in.mov"_s), path(u"out.mp4"_s));
        QTRY_VERIFY(QFile::exists(path(u"out.mp4"_s)));
        first.progress->cancel();
        ToolSwap::setScript("output|sleep:300");
        const Conversion second(path(u"in.mov"_s), path(u"sub/../out.mp4"_s));
        const Conversion third(path(u"in.mov"_s), path(u"out.mp4"_s));
        third.progress->cancel();
        third.wait();
        second.wait();
        QVERIFY(first.progress->isEnded());
        QVERIFY(QFile::exists(path(u"out.mp4"_s)));
    }
};

QTEST_GUILESS_MAIN(TestConversion)
#include "tst_conversion.moc"
