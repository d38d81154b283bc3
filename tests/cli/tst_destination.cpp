// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Rows.h"

#include <QDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

/// Where results go, and where they must not.
class TestDestination : public QObject {
    Q_OBJECT

    [[nodiscard]] QStringList files(const QString &folder) const
    {
        return QDir(m_command->path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<Command> m_command;
    QByteArray m_video;

private Q_SLOTS:
    void init()
    {
        m_command = std::make_unique<Command>();
        const QString video = m_command->path(u"video.mp4"_s);
        if (m_video.isEmpty()) {
            Media::video(video, 1);
            m_video = m_command->contents(u"video.mp4"_s);
        }
        m_command->write(u"video.mp4"_s, m_video);
        m_command->write(u"exists.mp4"_s, "precious");
        m_command->makeFolder(u"folder"_s);
        m_command->makeFolder(u"other"_s);
        m_command->write(u"other/exists.mp4"_s, "precious");
        QFile::link(video, m_command->path(u"symlink.mp4"_s));
        QFile::link(m_command->path(u"nowhere/x"_s), m_command->path(u"dangling.mp4"_s));
        QFile::link(m_command->path(u"other/exists.mp4"_s), m_command->path(u"toexisting.mp4"_s));
        const QByteArray hardLink = QFile::encodeName(m_command->path(u"hardlink.mp4"_s));
        QCOMPARE(::link(QFile::encodeName(video).constData(), hardLink.constData()), 0);
    }

    void destination_isRefused_data()
    {
        const Utf8 source = "The result can't replace a video that is to be converted.";
        const Utf8 exists = "The destination exists already; --overwrite replaces it.";
        const Utf8 folder = "The destination is a folder, not a file.";
        const Utf8 readOnlyFolder = "The destination's folder may not be written to.";
        addRows<Utf8, Utf8>({ "words", "message" },
            {
                { "the video", "-o video.mp4", source },
                { "the video, to be overwritten", "-o video.mp4 --overwrite", source },
                { "doubled separator", "-o .//video.mp4 --overwrite", source },
                { "dot", "-o folder/./../video.mp4 --overwrite", source },
                { "symbolic link", "-o symlink.mp4 --overwrite", source },
                { "hard link", "-o hardlink.mp4 --overwrite", source },
                { "exists", "-o exists.mp4", exists },
                { "link to an existing file", "-o toexisting.mp4", exists },
                { "folder", "-o folder --overwrite", folder },
                { "names a folder", "-o new/", folder },
                { "folder missing", "-o new/x", "The destination's folder does not exist." },
                { "folder is a file", "-o exists.mp4/x", "The destination's folder is a file." },
                { "dangling link", "-o dangling.mp4 --overwrite",
                    "The destination is a link that leads nowhere." },
                { "device", "-o /dev/null --overwrite",
                    "The destination is a pipe or a device, not a file." },
                { "file in a read-only folder", "-o readonly/x.mp4", readOnlyFolder },
                { "to be replaced there", "-o readonly/exists.mp4 --overwrite", readOnlyFolder },
                { "read-only folder", "-d readonly", readOnlyFolder },
                { "read-only file", "-o readonly.mp4 --overwrite",
                    "The destination may not be written to." },
            });
    }
    void destination_isRefused()
    {
        QFETCH(const QString, words);
        QFETCH(const QString, message);
        m_command->makeFolder(u"readonly"_s);
        m_command->write(u"readonly.mp4"_s, "precious");
        m_command->write(u"readonly/exists.mp4"_s, "precious");
        QFile::setPermissions(
            m_command->path(u"readonly/exists.mp4"_s), QFile::Permissions(0x6666));
        QFile::setPermissions(m_command->path(u"readonly"_s), QFile::Permissions(0x5555));
        QFile::setPermissions(m_command->path(u"readonly.mp4"_s), QFile::Permissions(0x4444));
        if (words.contains(u"readonly"_s) && !m_command->dropPrivileges())
            QSKIP("No other user can run the program here");
        const QStringList before = m_command->listing();
        const Finished converted = m_command->run(u"convert --to MP4 video.mp4 "_s + words);
        QVERIFY2(converted.err.endsWith(u": "_s + message + u'\n'), qPrintable(converted.err));
        QCOMPARE(converted.exitCode, 4);
        QCOMPARE(m_command->listing(), before);
        QCOMPARE(m_command->contents(u"video.mp4"_s), m_video);
        QCOMPARE(m_command->contents(u"readonly.mp4"_s), "precious");
        QVERIFY(QFile::exists(u"/dev/null"_s));
    }

    void removedCurrentFolder_isNotTheRoot()
    {
        const QByteArray gone = QFile::encodeName(m_command->path(u"gone"_s));
        m_command->makeFolder(u"gone"_s);
        const auto process = m_command->start(
            u"convert --to MP4 -o result.mp4"_s, { m_command->path(u"video.mp4"_s) }, [&gone] {
                if (::chdir(gone.constData()) != 0 || ::rmdir(gone.constData()) != 0)
                    ::_exit(126);
            });
        const Finished converted = Command::wait(*process);
        QVERIFY(!QFile::remove(u"/result.mp4"_s));
        QVERIFY2(
            converted.err.endsWith(u"The video or the destination's folder no longer exists.\n"_s),
            qPrintable(converted.err));
    }

    void laterVideo_isNotReplaced()
    {
        // The first result would get the name of the second source. The first failure counts.
        m_command->write(u"a.mov"_s, m_video);
        m_command->write(u"a.mp4"_s, m_video);
        const Finished converted
            = m_command->run(u"convert --to MP4 a.mov a.mp4 gone -d . --overwrite"_s);
        QCOMPARE(converted.exitCode, 4);
        QVERIFY2(converted.err.contains(
                     u"/a.mp4: The result can't replace a video that is to be converted.\n"_s),
            qPrintable(converted.err));
        QVERIFY2(converted.out.endsWith(u"1 of 3 videos converted\n"_s), qPrintable(converted.out));
        QCOMPARE(m_command->contents(u"a.mp4"_s), m_video);
        QVERIFY(m_command->exists(u"a 2.mp4"_s));
    }

    void resultsOfOneRun_doNotReplaceEachOther()
    {
        m_command->write(u"other.mov"_s, m_video);
        QFile::link(u"video.mkv"_s, m_command->path(u"folder/other.mkv"_s));
        const Finished converted
            = m_command->run(u"convert --to MKV video.mp4 other.mov -d folder --overwrite"_s);
        QVERIFY2(converted.err.endsWith(
                     u"/other.mkv: The result would replace another one of this run.\n"_s),
            qPrintable(converted.err));
        QVERIFY2(converted.out.endsWith(u"1 of 2 videos converted\n"_s), qPrintable(converted.out));
    }

    void videosOfOneName_getNumbers()
    {
        m_command->makeFolder(u"out"_s);
        m_command->write(u"folder/video.mov"_s, m_video);
        m_command->write(u"VIDEO.mov"_s, m_video);
        const Finished converted
            = m_command->run(u"convert --to MKV -d out video.mp4 folder/video.mov VIDEO.mov"_s);
        QCOMPARE(converted.end(), u"0: "_s);
        QCOMPARE(
            files(u"out"_s), (QStringList{ u"VIDEO 3.mkv"_s, u"video 2.mkv"_s, u"video.mkv"_s }));
    }

    void simultaneousRuns_writeOneFileOnce()
    {
        const QString line = u"convert --to MKV video.mp4 -d folder"_s;
        const auto first = m_command->start(line);
        const auto second = m_command->start(line);
        QStringList ends{ Command::wait(*first).end(), Command::wait(*second).end() };
        ends.sort();
        QCOMPARE(ends.first(), u"0: "_s);
        QCOMPARE(ends.last(),
            u"4: %1: The destination exists already; --overwrite replaces it.\n"_s.arg(
                m_command->path(u"folder/video.mkv"_s)));
    }

    void existingFile_isReplacedOnRequest()
    {
        for (const QString &destination : { u"exists.mp4"_s, u"toexisting.mp4"_s }) {
            const Finished converted
                = m_command->run(u"convert --to MP4 video.mp4 --overwrite -o "_s + destination);
            QCOMPARE(converted.end(), u"0: "_s);
            const QString result = m_command->path(destination);
            QCOMPARE(Media::formatEntry(result, u"format_name"_s).left(3), u"mov"_s);
        }
        QVERIFY(QFileInfo(m_command->path(u"toexisting.mp4"_s)).isSymLink());
    }

    void strangeName_isConverted_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : { u"-i.mp4"_s, u"100%d.mp4"_s, u"a'b\"c.mp4"_s,
                 u"new\nline.mp4"_s, u"🎬 фильм.mp4"_s, u"concat:x.mp4"_s, u" $HOME `id`;\\.mp4"_s,
                 u"-"_s, u".mov"_s, u"e\u0301.mp4"_s, QString(240, u'x') + u".mp4"_s })
            QTest::addRow("%s", qPrintable(name.left(20))) << name;
    }
    void strangeName_isConverted()
    {
        QFETCH(const QString, name);
        m_command->write(name, m_video);
        const Finished converted = m_command->run(u"convert --to MKV -d folder --"_s, { name });
        QCOMPARE(converted.end(), u"0: "_s);
        const QString last = converted.out.chopped(1).section(u'\n', -1);
        QVERIFY2(last.contains(u": converted to /"_s), qPrintable(converted.out));
        const QString base = name.endsWith(u".mp4"_s) ? name.chopped(4) : name;
        QCOMPARE(files(u"folder"_s), QStringList{ base + u".mkv"_s });
        // The result can be a video and a destination in its turn.
        const Finished back
            = m_command->run(u"convert --to MP4 -o -o.mp4"_s, { u"folder/"_s + base + u".mkv"_s });
        QCOMPARE(back.end(), u"0: "_s);
    }
};

QTEST_GUILESS_MAIN(TestDestination)
#include "tst_destination.moc"
