// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/SerialQueue.h"
#include "support/Console.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// The sanitizers are slow, and keep freed memory back.
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

class TestLeaks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fourAtOnce_allEndWell();
    void manyInARow_leaveNothingBehind();

private:
    std::shared_ptr<Progress> start(const QString &name);
    void runOne(int number);

    QTemporaryDir m_folder;
    int m_errors = 0;
};

void TestLeaks::initTestCase()
{
    Console::setSink([](const QString &) {});
    Media::film(m_folder.filePath(u"in.mp4"_s), 2, u"64x64"_s);
}

std::shared_ptr<Progress> TestLeaks::start(const QString &name)
{
    const VideoConstraints constraints{ VideoDimensionsConstraints::unlimited(),
        VideoQualityConstraints::unchanged, ConversionFormat::mkv, u"MKV"_s };
    const JSON info = JSON::parse(R"({"streams":[{"codec_type":"video","codec_name":"h264"},)"
                                  R"({"codec_type":"audio","codec_name":"aac"}]})");
    return FFMPEG::convertFile(m_folder.filePath(u"in.mp4"_s), m_folder.filePath(name), constraints,
        info, [this](const std::optional<QString> &) { ++m_errors; });
}

void TestLeaks::fourAtOnce_allEndWell()
{
    std::vector<std::shared_ptr<Progress>> runs;
    for (int i = 0; i < 4; ++i)
        runs.push_back(start(u"four%1.mkv"_s.arg(i)));
    for (int i = 0; i < 4; ++i) {
        QTRY_VERIFY_WITH_TIMEOUT(runs[static_cast<std::size_t>(i)]->isEnded(), 20'000);
        QVERIFY(QFile::exists(m_folder.filePath(u"four%1.mkv"_s.arg(i))));
    }
    QCoreApplication::processEvents();
    QCOMPARE(m_errors, 0);
}

void TestLeaks::runOne(int number)
{
    const auto progress = start(u"row.mkv"_s);
    if (number % 10 == 9)
        progress->cancel();
    QTRY_VERIFY_WITH_TIMEOUT(progress->isEnded(), 20'000);
    QCOMPARE(
        progress->isCancelled() || progress->completedUnitCount() == progress->totalUnitCount(),
        true);
}

void TestLeaks::manyInARow_leaveNothingBehind()
{
    for (int i = 0; i < 20; ++i)
        runOne(i);
    SerialQueue::waitForAll();
    const qsizetype descriptors = Processes::openDescriptors();
    const qsizetype threads = Processes::threads();
    const qint64 memory = Processes::residentMemory();
    for (int i = 0; i < (sanitized ? 40 : 200); ++i)
        runOne(i);
    SerialQueue::waitForAll();
    QTRY_COMPARE(Processes::threads(), threads);
    QCOMPARE(Processes::openDescriptors(), descriptors);
    QCOMPARE(Processes::children(), QStringList());
    QCOMPARE(m_errors, 0);
    const qint64 growth = Processes::residentMemory() - memory;
    QVERIFY2(sanitized || growth < 2048, qPrintable(QString::number(growth)));
}

QTEST_GUILESS_MAIN(TestLeaks)
#include "tst_leaks.moc"
