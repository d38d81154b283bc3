// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/SerialQueue.h"
#include "support/Console.h"
#include "support/MainQueue.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/ToolSwap.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <mutex>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray length = R"(print:  Duration: 00:01:40.00, start: 0.000000\n)";

QByteArray report(int seconds)
{
    return "time=00:" + QByteArray::number(seconds / 60).rightJustified(2, '0') + ':'
        + QByteArray::number(seconds % 60).rightJustified(2, '0') + ".50 bitrate= 1kbits/s\\r";
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const VideoConstraints mp4{ VideoDimensionsConstraints::unlimited(),
    VideoQualityConstraints::unchanged, ConversionFormat::mp4, u"MP4"_s };

// A conversion by whatever tool the bundle has, with all that it reports.
class Conversion {
public:
    Conversion(const QString &path, const QString &destPath)
        : progress(FFMPEG::convertFile(
            path, destPath, mp4, JSON(), [this](const std::optional<QString> &errmsg) {
                errors += MainQueue::isMainThread() ? errmsg.value_or(u"(none)"_s)
                                                    : u"on the wrong thread"_s;
            }))
    {
    }

    // Ends in the event loop, so that posted answers have arrived too.
    void wait() const
    {
        QTRY_VERIFY_WITH_TIMEOUT(progress->isEnded(), 20'000);
        SerialQueue::waitForAll();
        QCoreApplication::processEvents();
    }

    QStringList errors;
    std::shared_ptr<Progress> progress;
};

}

class TestConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void progress_followsTheOutput_data();
    void progress_followsTheOutput();
    void progress_isPublishedStepByStep();
    void failures_areReportedAndCleanedUp_data();
    void failures_areReportedAndCleanedUp();
    void stoppedShort_isReportedAndKept();
    void launchFailure_looksCancelled();
    void cancel_isPromptAndLeavesNothing_data();
    void cancel_isPromptAndLeavesNothing();
    void cancelInTheFirstMoments_leavesNothing();
    void sourceAsDestination_isRefused_data();
    void sourceAsDestination_isRefused();
    void secondRunToOnePlace_waitsForTheFirst();
    void tool_getsItsArgumentsAndNoKeyboard();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] QStringList lines()
    {
        const std::lock_guard lock(m_mutex);
        return m_lines;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::mutex m_mutex;
    QStringList m_lines;
};

void TestConversion::initTestCase()
{
    Console::setSink([this](const QString &line) {
        const std::lock_guard lock(m_mutex);
        m_lines += line;
    });
}

void TestConversion::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile source(path(u"in.mov"_s));
    QVERIFY(source.open(QIODevice::WriteOnly) && source.write("the film") == 8);
    const std::lock_guard lock(m_mutex);
    m_lines.clear();
}

void TestConversion::cleanup()
{
    QCOMPARE(contents(path(u"in.mov"_s)), QByteArray("the film"));
    QCOMPARE(Processes::children(), QStringList());
}

void TestConversion::progress_followsTheOutput_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QStringList>("errors");
    const QStringList none;
    const auto shortAt = [](const QString &at) {
        return QStringList{ u"The converting progress was finished at "_s + at };
    };
    const QByteArray pause = "|sleep:150|print:";
    QTest::newRow("last report of a chunk wins")
        << length + "|sleep:150|print:" + report(10) + report(60) + pause + report(99)
        << qint64{ 100 } << u"last delta: -39, last pos: 1"_s << none;
    QTest::newRow("report beyond the end")
        << length + pause + report(50) + pause + report(120) << qint64{ 100 }
        << u"last delta: -50, last pos: 0"_s << none;
    QTest::newRow("reports before the length do not count")
        << "print:" + report(90) + "|sleep:150|" + length << qint64{ 100 }
        << u"last delta: 0, last pos: 100"_s << shortAt(u"0s"_s);
    QTest::newRow("step of 5 explains 10 that are left")
        << length + pause + report(85) + pause + report(90) << qint64{ 100 }
        << u"last delta: -5, last pos: 10"_s << none;
    QTest::newRow("step of 4 does not")
        << length + pause + report(86) + pause + report(90) << qint64{ 100 }
        << u"last delta: -4, last pos: 10"_s << shortAt(u"1m 30s"_s);
    QTest::newRow("length cut between two chunks")
        << R"(print:Duration: 00:0|sleep:150|print:1:40.00, start: 0\n)" + pause + report(100)
        << qint64{ 100 } << u"last delta: -100, last pos: 0"_s << none;
    QTest::newRow("bad byte beside the length")
        << R"(print:title: \xD0\n  Duration: 00:01:40.00, start: 0\n)" + pause + report(100)
        << qint64{ 100 } << u"last delta: -100, last pos: 0"_s << none;
    QTest::newRow("length unknown") << R"(print:Duration: N/A, start: 0\n)" + pause + report(90)
                                    << qint64{ -1 } << u"last delta: 0, last pos: -1"_s << none;
    QTest::newRow("nothing said") << QByteArray("exit:0") << qint64{ -1 }
                                  << u"last delta: 0, last pos: -1"_s << none;
}

void TestConversion::progress_followsTheOutput()
{
    QFETCH(QByteArray, script);
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "output|" + script);
    const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
    QCOMPARE(conversion.progress->totalUnitCount(), qint64{ -1 });
    QCOMPARE(conversion.progress->kind(), Progress::Kind::File);
    conversion.wait();
    QTEST(conversion.progress->totalUnitCount(), "total");
    QTEST(conversion.progress->completedUnitCount(), "total");
    QTEST(conversion.errors, "errors");
    QTEST(lines().value(0), "summary");
    QVERIFY(QFile::exists(path(u"out.mp4"_s)));
    QVERIFY(!conversion.progress->isCancelled());
}

void TestConversion::progress_isPublishedStepByStep()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
        length + "|sleep:150|print:" + report(10) + "|sleep:150|print:" + report(99)
            + "|sleep:150");
    const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
    std::mutex mutex;
    QList<qint64> steps;
    conversion.progress->addObserver(Progress::Key::CompletedUnitCount, this, [&](Progress::Key) {
        const std::lock_guard lock(mutex);
        steps += MainQueue::isMainThread() ? -1 : conversion.progress->completedUnitCount();
    });
    conversion.wait();
    QCOMPARE(steps, (QList<qint64>{ 10, 99, 100 }));
}

void TestConversion::failures_areReportedAndCleanedUp_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("exit status") << QByteArray("exit:1");
    QTest::newRow("killed") << QByteArray("signal:9");
    QTest::newRow("crashed") << QByteArray("signal:11");
    QTest::newRow("result cut off by a full disk, status 0")
        << QByteArray(R"(print:size=1kB\rError writing trailer of /out.mp4: No space left\n)");
}

void TestConversion::failures_areReportedAndCleanedUp()
{
    QFETCH(QByteArray, end);
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
        length + "|output|print:" + report(40) + "|print:No space left\\n|" + end);
    const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
    conversion.wait();
    QCOMPARE(conversion.errors, QStringList{ u"(none)"_s });
    QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
    QVERIFY(!conversion.progress->isCancelled());
    QVERIFY(conversion.progress->completedUnitCount() < 100);
    QVERIFY(conversion.progress->toolOutput().endsWith("No space left\n"));
    const QString last = lines().constLast();
    QVERIFY2(last.startsWith(u"error occured: "_s) && last.contains(u"No space left"_s),
        qPrintable(last));
}

void TestConversion::stoppedShort_isReportedAndKept()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
        "output|" + length + "|sleep:150|print:" + report(7) + "|sleep:150|print:" + report(7));
    const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
    conversion.wait();
    QCOMPARE(conversion.errors, QStringList{ u"The converting progress was finished at 7s"_s });
    QCOMPARE(lines(),
        (QStringList{ u"last delta: 0, last pos: 93"_s,
            u"conversion of bad file, not all length has been processed"_s }));
    QVERIFY(QFile::exists(path(u"out.mp4"_s)));
    QCOMPARE(conversion.progress->completedUnitCount(), qint64{ 100 });
}

void TestConversion::launchFailure_looksCancelled()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::Nothing);
    QVERIFY(QFile::copy(path(u"in.mov"_s), path(u"out.mp4"_s)));
    const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
    conversion.wait();
    QVERIFY(conversion.progress->isCancelled());
    QCOMPARE(conversion.errors, QStringList());
    QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
    QCOMPARE(lines().size(), 1);
    QVERIFY(lines().constFirst().startsWith(u"something bad happened: "_s));
}

void TestConversion::cancel_isPromptAndLeavesNothing_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("limit");
    QTest::newRow("silent") << QByteArray("output|print:ready|forever") << 2000;
    QTest::newRow("talking") << QByteArray("output|print:ready|") + length
            + "|reports:100000000:1000"
                             << 2000;
    QTest::newRow("flooding") << QByteArray("output|print:ready|flood:100000000000") << 2000;
    QTest::newRow("deaf") << QByteArray("deaf|output|print:ready|forever") << 6000;
    QTest::newRow("deaf and flooding")
        << QByteArray("deaf|output|print:ready|flood:100000000000") << 6000;
}

void TestConversion::cancel_isPromptAndLeavesNothing()
{
    QFETCH(QByteArray, script);
    QFETCH(int, limit);
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, script);
    const Conversion conversion(path(u"in.mov"_s), path(u"out.mp4"_s));
    QTRY_VERIFY(QFile::exists(path(u"out.mp4"_s)));
    QElapsedTimer timer;
    timer.start();
    conversion.progress->cancel();
    conversion.wait();
    QVERIFY2(timer.elapsed() < limit, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!QFile::exists(path(u"out.mp4"_s)));
    QCOMPARE(conversion.errors, QStringList());
    QCOMPARE(Processes::children(), QStringList());
}

void TestConversion::cancelInTheFirstMoments_leavesNothing()
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

void TestConversion::sourceAsDestination_isRefused_data()
{
    QTest::addColumn<QString>("spelling");
    QTest::newRow("same") << u"in.mov"_s;
    QTest::newRow("doubled separator") << u"/in.mov"_s;
    QTest::newRow("dot") << u"./in.mov"_s;
    QTest::newRow("up and down") << u"sub/../in.mov"_s;
    QTest::newRow("symbolic link") << u"symlink.mp4"_s;
    QTest::newRow("hard link") << u"hardlink.mp4"_s;
}

void TestConversion::sourceAsDestination_isRefused()
{
    QFETCH(QString, spelling);
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

void TestConversion::secondRunToOnePlace_waitsForTheFirst()
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

void TestConversion::tool_getsItsArgumentsAndNoKeyboard()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "arguments");
    const Conversion conversion(path(u"in.mov"_s), path(u"-100%d 'ü😀.mp4"_s));
    conversion.wait();
    QStringList arguments
        = QString::fromUtf8(conversion.progress->toolOutput()).trimmed().split(u'\t');
    arguments.removeFirst();
    QCOMPARE(arguments,
        (QStringList{ u"-hide_banner"_s, u"-loglevel"_s, u"verbose"_s, u"-y"_s, u"-i"_s,
            path(u"in.mov"_s), u"-strict"_s, u"experimental"_s, u"-f"_s, u"mp4"_s,
            path(u"-100%d 'ü😀.mp4"_s) }));
}

QTEST_GUILESS_MAIN(TestConversion)
#include "tst_conversion.moc"
