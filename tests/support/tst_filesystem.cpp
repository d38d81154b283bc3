// SPDX-License-Identifier: MIT
#include "support/FileSystem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestFileSystem : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void path_isExamined_data();
    void path_isExamined();
    void sameFile_isRecognised_data();
    void sameFile_isRecognised();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QByteArray encoded(const QString &name) const
    {
        return QFile::encodeName(path(name));
    }
    void write(const QString &name, const QByteArray &content) const;

    QTemporaryDir m_folder;
};

void TestFileSystem::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void TestFileSystem::initTestCase()
{
    write(u"film.mp4"_s, "12345");
    write(u"copy.mp4"_s, "12345");
    write(u"empty"_s, {});
    write(u"new\nline 🎬 %d.mp4"_s, "123");
    QVERIFY(QDir(m_folder.path()).mkdir(u"folder"_s));
    QVERIFY(QFile::link(path(u"film.mp4"_s), path(u"link"_s)));
    QVERIFY(QFile::link(m_folder.path(), path(u"folder/up"_s)));
    QVERIFY(QFile::link(path(u"gone"_s), path(u"dangling"_s)));
    QCOMPARE(::link(encoded(u"film.mp4"_s).constData(), encoded(u"hard"_s).constData()), 0);
    QCOMPARE(::mkfifo(encoded(u"fifo"_s).constData(), 0600), 0);
}

void TestFileSystem::path_isExamined_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isRegular");
    QTest::addColumn<qulonglong>("size");

    QTest::newRow("file") << u"film.mp4"_s << true << 5ULL;
    QTest::newRow("empty file") << u"empty"_s << true << 0ULL;
    QTest::newRow("link") << u"link"_s << true << 5ULL;
    QTest::newRow("strange name") << u"new\nline 🎬 %d.mp4"_s << true << 3ULL;
    QTest::newRow("missing") << u"gone"_s << false << 0ULL;
    QTest::newRow("dangling link") << u"dangling"_s << false << 0ULL;
    QTest::newRow("below a file") << u"film.mp4/x"_s << false << 0ULL;
    QTest::newRow("FIFO") << u"fifo"_s << false << 0ULL;
    QTest::newRow("device") << u"/dev/null"_s << false << 0ULL;
}

void TestFileSystem::path_isExamined()
{
    QFETCH(QString, name);
    QFETCH(qulonglong, size);
    QTEST(isRegularFile(path(name)), "isRegular");
    QCOMPARE(fileSize(path(name)), size);
    QVERIFY(!isRegularFile(path(u"folder"_s)));
}

void TestFileSystem::sameFile_isRecognised_data()
{
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("isSame");

    QTest::newRow("itself") << u"film.mp4"_s << true;
    QTest::newRow("link") << u"link"_s << true;
    QTest::newRow("hard link") << u"hard"_s << true;
    QTest::newRow("way round") << u"folder/.././/film.mp4"_s << true;
    QTest::newRow("linked folder") << u"folder/up/film.mp4"_s << true;
    QTest::newRow("equal content") << u"copy.mp4"_s << false;
    QTest::newRow("missing") << u"gone"_s << false;
    QTest::newRow("dangling link") << u"dangling"_s << false;
}

void TestFileSystem::sameFile_isRecognised()
{
    QFETCH(QString, other);
    QTEST(isSameFile(path(u"film.mp4"_s), path(other)), "isSame");
    QTEST(isSameFile(path(other), path(u"film.mp4"_s)), "isSame");
    QVERIFY(!isSameFile(path(u"gone"_s), path(u"gone"_s)));
}

QTEST_GUILESS_MAIN(TestFileSystem)
#include "tst_filesystem.moc"
