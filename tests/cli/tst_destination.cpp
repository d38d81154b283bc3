// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

/// Where results go, and where they must not.
class TestDestination : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void destination_isRefused_data();
    void destination_isRefused();
    void protectedDestination_isRefused_data();
    void protectedDestination_isRefused();
    void laterFilm_isNotReplaced();
    void filmsOfOneName_getNumbers();
    void existingFile_isReplacedOnRequest_data();
    void existingFile_isReplacedOnRequest();
    void strangeName_isConverted_data();
    void strangeName_isConverted();

private:
    Finished convert(const QStringList &rest) const
    {
        return m_command->run(QStringList{ u"convert"_s, u"--to"_s, u"MP4 Low Quality"_s } + rest);
    }

    std::unique_ptr<Command> m_command;
    QByteArray m_film;
};

void TestDestination::init()
{
    m_command = std::make_unique<Command>();
    if (m_film.isEmpty()) {
        Media::film(m_command->path(u"film.mp4"_s), 1);
        m_film = m_command->contents(u"film.mp4"_s);
    }
    m_command->write(u"film.mp4"_s, m_film);
    const QString film = m_command->path(u"film.mp4"_s);
    const QDir folder(m_command->path(QString()));
    QVERIFY(folder.mkdir(u"folder"_s));
    m_command->write(u"exists.mp4"_s, "precious");
    QVERIFY(QFile::link(film, m_command->path(u"symlink.mp4"_s)));
    QVERIFY(QFile::link(m_command->path(u"nowhere/x"_s), m_command->path(u"dangling.mp4"_s)));
    QVERIFY(QFile::link(m_command->path(u"exists.mp4"_s), m_command->path(u"toexisting.mp4"_s)));
    QVERIFY(::link(QFile::encodeName(film).constData(),
                QFile::encodeName(m_command->path(u"hardlink.mp4"_s)).constData())
        == 0);
}

void TestDestination::destination_isRefused_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *tag, const QStringList &words, const char *message) {
        QTest::newRow(tag) << words << QString::fromLatin1(message);
    };
    const QString over = u"--overwrite"_s;
    const char *source = "The result can't replace a film that is to be converted.";
    row("the film", { u"film.mp4"_s }, source);
    row("the film, to be overwritten", { u"film.mp4"_s, over }, source);
    row("doubled separator", { u".//film.mp4"_s, over }, source);
    row("dot", { u"folder/./../film.mp4"_s, over }, source);
    row("symbolic link", { u"symlink.mp4"_s, over }, source);
    row("hard link", { u"hardlink.mp4"_s, over }, source);
    row("exists", { u"exists.mp4"_s }, "The destination exists already; --overwrite replaces it.");
    row("link to an existing file", { u"toexisting.mp4"_s },
        "The destination exists already; --overwrite replaces it.");
    row("folder", { u"folder"_s, over }, "The destination is a folder, not a file.");
    row("names a folder", { u"new/"_s }, "The destination is a folder, not a file.");
    row("folder missing", { u"new/x.mp4"_s }, "The destination's folder does not exist.");
    row("folder is a file", { u"exists.mp4/x.mp4"_s }, "The destination's folder is a file.");
    row("dangling link", { u"dangling.mp4"_s, over },
        "The destination is a link that leads nowhere.");
    row("device", { u"/dev/null"_s, over }, "The destination is a pipe or a device, not a file.");
}

void TestDestination::destination_isRefused()
{
    QFETCH(QStringList, words);
    QFETCH(QString, message);
    const QStringList before = m_command->listing();
    const Finished converted = convert(QStringList{ u"film.mp4"_s, u"-o"_s } + words);
    QVERIFY2(converted.err.endsWith(u": "_s + message + u'\n'), qPrintable(converted.err));
    QCOMPARE(converted.exitCode, 4);
    QCOMPARE(m_command->listing(), before);
    QCOMPARE(m_command->contents(u"film.mp4"_s), m_film);
    QVERIFY(QFile::exists(u"/dev/null"_s));
}

void TestDestination::protectedDestination_isRefused_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("message");
    QTest::newRow("file in a folder") << QStringList{ u"-o"_s, u"folder/x.mp4"_s }
                                      << u"The destination's folder may not be written to."_s;
    QTest::newRow("folder") << QStringList{ u"-d"_s, u"folder"_s }
                            << u"The destination's folder may not be written to."_s;
    QTest::newRow("file") << QStringList{ u"-o"_s, u"exists.mp4"_s, u"--overwrite"_s }
                          << u"The destination may not be written to."_s;
}

void TestDestination::protectedDestination_isRefused()
{
    QFETCH(QStringList, words);
    QFETCH(QString, message);
    QFile::setPermissions(m_command->path(u"folder"_s), QFile::Permissions(0x5555));
    QFile::setPermissions(m_command->path(u"exists.mp4"_s), QFile::Permissions(0x4444));
    if (!m_command->dropPrivileges())
        QSKIP("No other user can run the program here");
    const Finished converted = convert(QStringList{ u"film.mp4"_s } + words);
    QVERIFY2(converted.err.endsWith(u": "_s + message + u'\n'), qPrintable(converted.err));
    QCOMPARE(converted.exitCode, 4);
    QCOMPARE(m_command->contents(u"exists.mp4"_s), "precious");
}

void TestDestination::laterFilm_isNotReplaced()
{
    // The first film's result would be called as the second film.
    QVERIFY(QFile::rename(m_command->path(u"film.mp4"_s), m_command->path(u"a.mov"_s)));
    m_command->write(u"a.mp4"_s, m_film);
    const Finished converted
        = convert({ u"a.mov"_s, u"a.mp4"_s, u"-d"_s, u"."_s, u"--overwrite"_s });
    QCOMPARE(converted.exitCode, 4);
    QVERIFY2(converted.err.endsWith(
                 u"/a.mp4: The result can't replace a film that is to be converted.\n"_s),
        qPrintable(converted.err));
    QVERIFY2(converted.out.endsWith(u"1 of 2 films converted\n"_s), qPrintable(converted.out));
    QCOMPARE(m_command->contents(u"a.mp4"_s), m_film);
    QVERIFY(QFile::exists(m_command->path(u"a 2.mp4"_s)));
}

void TestDestination::filmsOfOneName_getNumbers()
{
    m_command->write(u"folder/film.mov"_s, m_film);
    m_command->write(u"FILM.mov"_s, m_film);
    QVERIFY(QDir(m_command->path(QString())).mkdir(u"out"_s));
    const Finished converted = m_command->run({ u"convert"_s, u"--to"_s, u"MKV"_s, u"-d"_s,
        u"out"_s, u"film.mp4"_s, u"folder/film.mov"_s, u"FILM.mov"_s });
    QCOMPARE(converted.err, QString());
    QCOMPARE(converted.exitCode, 0);
    QCOMPARE(QDir(m_command->path(u"out"_s)).entryList(QDir::Files, QDir::Name),
        (QStringList{ u"FILM 3.mkv"_s, u"film 2.mkv"_s, u"film.mkv"_s }));
}

void TestDestination::existingFile_isReplacedOnRequest_data()
{
    QTest::addColumn<QString>("destination");
    QTest::newRow("file") << u"exists.mp4"_s;
    QTest::newRow("link to it") << u"toexisting.mp4"_s;
}

void TestDestination::existingFile_isReplacedOnRequest()
{
    QFETCH(QString, destination);
    const Finished converted = convert({ u"film.mp4"_s, u"-o"_s, destination, u"--overwrite"_s });
    QCOMPARE(converted.err, QString());
    QCOMPARE(converted.exitCode, 0);
    QCOMPARE(
        Media::formatEntry(m_command->path(u"exists.mp4"_s), u"format_name"_s).left(3), u"mov"_s);
    QVERIFY(QFileInfo(m_command->path(u"toexisting.mp4"_s)).isSymLink());
}

void TestDestination::strangeName_isConverted_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : { u"-i.mp4"_s, u"100%d.mp4"_s, u"a'b\"c.mp4"_s, u"new\nline.mp4"_s,
             u"🎬 фильм.mp4"_s, u"concat:x.mp4"_s, u" $HOME `id`;\\.mp4"_s, u"-"_s, u".mov"_s,
             u"e\u0301.mp4"_s, QString(240, u'x') + u".mp4"_s })
        QTest::addRow("%s", qPrintable(name.left(20))) << name;
}

void TestDestination::strangeName_isConverted()
{
    QFETCH(QString, name);
    QVERIFY(QFile::rename(m_command->path(u"film.mp4"_s), m_command->path(name)));
    const Finished converted = m_command->run(
        { u"convert"_s, u"--to"_s, u"MKV"_s, u"-d"_s, u"folder"_s, u"--"_s, name });
    QCOMPARE(converted.err, QString());
    QCOMPARE(converted.exitCode, 0);
    const QString last = converted.out.chopped(1).section(u'\n', -1);
    QVERIFY2(last.contains(u": converted to /"_s), qPrintable(converted.out));
    const QString base = name.endsWith(u".mp4"_s) ? name.chopped(4) : name;
    QCOMPARE(QDir(m_command->path(u"folder"_s)).entryList(QDir::Files | QDir::Hidden),
        QStringList{ base + u".mkv"_s });
    // The result can be a film and a destination in its turn.
    const QString result = u"folder/"_s + base + u".mkv"_s;
    const Finished back
        = m_command->run({ u"convert"_s, u"--to"_s, u"MP4"_s, u"-o"_s, u"-o.mp4"_s, result });
    QCOMPARE(back.err, QString());
    QCOMPARE(back.exitCode, 0);
}

QTEST_GUILESS_MAIN(TestDestination)
#include "tst_destination.moc"
