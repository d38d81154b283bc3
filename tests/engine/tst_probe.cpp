// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"
#include "engine/SerialQueue.h"
#include "support/Console.h"
#include "support/FileSystem.h"
#include "support/MainQueue.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <mutex>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct Answer {
    int refused = 0;
    int completed = 0;
    std::optional<ProbeRefusal> refusal;
    JSON info;
    QImage cover;
    QString duration;

    [[nodiscard]] int count() const { return refused + completed; }
};

void probe(const QString &path, Answer &answer)
{
    FFMPEG::collectMovieInfo(
        path,
        [&answer](ProbeRefusal refusal) {
            answer.refused += MainQueue::isMainThread() ? 1 : 100;
            answer.refusal = refusal;
        },
        [&answer](const JSON &info, const QImage &cover, const QString &duration) {
            answer.completed += MainQueue::isMainThread() ? 1 : 100;
            answer.info = info;
            answer.cover = cover;
            answer.duration = duration;
        });
}

}

class TestProbe : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void films_areDescribed_data();
    void films_areDescribed();
    void unsuitableFiles_areRefused_data();
    void unsuitableFiles_areRefused();
    void growingFile_isRefused();
    void missingTool_isOneLineAndARefusal_data();
    void missingTool_isOneLineAndARefusal();
    void cover_isTakenWhereTheLengthSays();
    void covers_arePrivateAndGoAtTheEnd();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    std::mutex m_mutex;
    QStringList m_lines;
};

void TestProbe::initTestCase()
{
    Console::setSink([this](const QString &line) {
        const std::lock_guard lock(m_mutex);
        m_lines += line;
    });
    Media::film(path(u"five.mp4"_s), 5, u"320x180"_s);
    Media::film(path(u"fifteen.mkv"_s), 15);
    QVERIFY(QFile::copy(path(u"five.mp4"_s), path(u"100%d 'ü\n😀.mp4"_s)));
    QVERIFY(QFile::link(path(u"five.mp4"_s), path(u"link.mp4"_s)));
    Media::ffmpeg(
        { u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine"_s, u"-t"_s, u"3"_s, path(u"sound.mp3"_s) });
    Media::ffmpeg(
        { u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine"_s, u"-t"_s, u"0.5"_s, path(u"short.wav"_s) });
    ::mkfifo(QFile::encodeName(path(u"fifo.mp4"_s)).constData(), 0600);
    QFile text(path(u"text.mp4"_s));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not a film\n") > 0);
    QFile empty(path(u"empty.mp4"_s));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QFile film(path(u"five.mp4"_s));
    QFile cut(path(u"cut.mp4"_s));
    QVERIFY(film.open(QIODevice::ReadOnly) && cut.open(QIODevice::WriteOnly));
    cut.write(film.read(film.size() / 2));
}

void TestProbe::cleanup()
{
    const std::lock_guard lock(m_mutex);
    m_lines.clear();
}

void TestProbe::films_areDescribed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("cover");
    QTest::addColumn<QString>("duration");
    QTest::newRow("film") << u"five.mp4"_s << QSize(320, 180) << u"5s"_s;
    QTest::newRow("odd name") << u"100%d 'ü\n😀.mp4"_s << QSize(320, 180) << u"5s"_s;
    QTest::newRow("link") << u"link.mp4"_s << QSize(320, 180) << u"5s"_s;
    QTest::newRow("cover would lie behind the end") << u"fifteen.mkv"_s << QSize() << u"15s"_s;
    QTest::newRow("sound alone") << u"sound.mp3"_s << QSize() << u"3s"_s;
}

void TestProbe::films_areDescribed()
{
    QFETCH(QString, name);
    QFETCH(QSize, cover);
    Answer answer;
    probe(path(name), answer);
    QCOMPARE(answer.count(), 0);
    QTRY_COMPARE(answer.completed, 1);
    QCOMPARE(answer.cover.isNull(), cover.isEmpty());
    if (!cover.isEmpty())
        QCOMPARE(answer.cover.size(), cover);
    QTEST(answer.duration, "duration");
    QCOMPARE(answer.info[u"format"_s][u"size"_s].string(), QString::number(fileSize(path(name))));
    QVERIFY(!answer.info[u"streams"_s].array().empty());
    SerialQueue::waitForAll();
    QCoreApplication::processEvents();
    QCOMPARE(answer.count(), 1);
}

void TestProbe::unsuitableFiles_areRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ProbeRefusal>("refusal");
    QTest::newRow("missing") << u"nothing.mp4"_s << ProbeRefusal::NotARegularFile;
    QTest::newRow("folder") << u"."_s << ProbeRefusal::NotARegularFile;
    QTest::newRow("FIFO") << u"fifo.mp4"_s << ProbeRefusal::NotARegularFile;
    QTest::newRow("empty") << u"empty.mp4"_s << ProbeRefusal::NotMedia;
    QTest::newRow("text") << u"text.mp4"_s << ProbeRefusal::NotMedia;
    QTest::newRow("cut in the middle") << u"cut.mp4"_s << ProbeRefusal::NotMedia;
    QTest::newRow("half a second") << u"short.wav"_s << ProbeRefusal::TooShort;
}

void TestProbe::unsuitableFiles_areRefused()
{
    QFETCH(QString, name);
    QFETCH(ProbeRefusal, refusal);
    Answer answer;
    probe(path(name), answer);
    QCOMPARE(answer.count(), 0);
    QTRY_COMPARE(answer.refused, 1);
    QVERIFY(answer.refusal == refusal);
}

void TestProbe::growingFile_isRefused()
{
    const ToolSwap swap(
        u"ffprobe"_s, ToolSwap::With::FakeTool, R"(out:{"format":{"duration":"5.0","size":"7"}})");
    Answer answer;
    probe(path(u"five.mp4"_s), answer);
    QTRY_COMPARE(answer.refused, 1);
    QVERIFY(answer.refusal == ProbeRefusal::SizeDiffers);
}

void TestProbe::missingTool_isOneLineAndARefusal_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<bool>("refused");
    QTest::newRow("no ffprobe") << u"ffprobe"_s << true;
    QTest::newRow("no ffmpeg, so no cover") << u"ffmpeg"_s << false;
}

void TestProbe::missingTool_isOneLineAndARefusal()
{
    QFETCH(QString, tool);
    QFETCH(bool, refused);
    const ToolSwap swap(tool, ToolSwap::With::Nothing);
    Answer answer;
    probe(path(u"five.mp4"_s), answer);
    QTRY_COMPARE(answer.count(), 1);
    QCOMPARE(answer.refused, refused ? 1 : 0);
    QVERIFY(answer.cover.isNull());
    const std::lock_guard lock(m_mutex);
    QCOMPARE(m_lines.filter(u"something bad happened: "_s).size(), 1);
}

void TestProbe::cover_isTakenWhereTheLengthSays()
{
    const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "arguments");
    Answer answer;
    probe(path(u"five.mp4"_s), answer);
    QTRY_COMPARE(answer.completed, 1);
    QStringList arguments = m_lines.constLast().trimmed().split(u'\t').mid(1);
    QVERIFY(arguments.value(5).endsWith(u".jpg"_s));
    arguments[5] = u"IMAGE"_s;
    QCOMPARE(arguments,
        (QStringList{ u"-an"_s, u"-ss"_s, u"00:00:02"_s, u"-i"_s, path(u"five.mp4"_s), u"IMAGE"_s,
            u"-y"_s }));
}

void TestProbe::covers_arePrivateAndGoAtTheEnd()
{
    // The last test: what shutDown() ends does not begin again.
    Answer answer;
    {
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool, "arguments");
        probe(path(u"five.mp4"_s), answer);
        QTRY_COMPARE(answer.completed, 1);
    }
    const QFileInfo folder(QFileInfo(m_lines.constLast().split(u'\t')[6]).path());
    QVERIFY(folder.isDir());
    QCOMPARE(folder.permissions()
            & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
        QFile::Permissions());
    // A probe whose tool is silent for ever does not hold up the program's end.
    const ToolSwap swap(u"ffprobe"_s, ToolSwap::With::FakeTool, "forever");
    Answer late;
    probe(path(u"five.mp4"_s), late);
    FFMPEG::shutDown();
    QVERIFY(!QFileInfo::exists(folder.filePath()));
}

QTEST_GUILESS_MAIN(TestProbe)
#include "tst_probe.moc"
