// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Rows.h"

using namespace Qt::StringLiterals;

/// Where results go, and where they must not.
class TestDestination : public QObject {
    Q_OBJECT

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
        m_command->shell(u"mkdir folder"_s);
    }

    void destination_isRefused_data()
    {
        const Utf8 source = "The result can't replace a video that is to be converted.";
        const Utf8 exists = "The destination exists already; --overwrite replaces it.";
        const Utf8 folder = "The destination is a folder, not a file.";
        const Utf8 readOnlyFolder = "The destination's folder may not be written to.";
        addRows<Utf8, Utf8>({ "words", "message" },
            { { "the video, to be overwritten", "-o video.mp4 --overwrite", source },
                { "detour", "-o folder/.//../video.mp4 --overwrite", source },
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
                { "read-only file", "-o readonly.mp4 --overwrite",
                    "The destination may not be written to." } });
    }
    void destination_isRefused()
    {
        QFETCH(const QString, words);
        QFETCH(const QString, message);
        m_command->shell(
            u"mkdir readonly\n"
            "printf precious | tee exists.mp4 readonly.mp4 readonly/exists.mp4\n"
            "chmod a+w readonly/exists.mp4; chmod a=rx readonly; chmod a=r readonly.mp4\n"
            "ln -s video.mp4 symlink.mp4; ln video.mp4 hardlink.mp4\n"
            "ln -s nowhere/x dangling.mp4; ln -s exists.mp4 toexisting.mp4"_s);
        const QStringList before = m_command->listing();
        const QString end = m_command->run(u"convert --to MP4 video.mp4 "_s + words).end();
        QVERIFY2(
            end.startsWith(u"4: "_s) && end.endsWith(u": "_s + message + u'\n'), qPrintable(end));
        QCOMPARE(m_command->listing(), before);
        QCOMPARE(m_command->contents(u"video.mp4"_s), m_video);
        QCOMPARE(m_command->contents(u"readonly.mp4"_s), "precious");
        QVERIFY(QFile::exists(u"/dev/null"_s));
    }

    void laterVideo_isNotReplaced()
    {
        // The first result would get the name of the second source. The first failure counts.
        m_command->shell(u"cp video.mp4 a.mov; cp video.mp4 a.mp4"_s);
        const Finished converted
            = m_command->run(u"convert --to MP4 a.mov a.mp4 gone -d . --overwrite"_s);
        QCOMPARE(converted.end(),
            u"4: %1: The result can't replace a video that is to be converted.\n"
            "gone: There is no such file.\n"_s.arg(m_command->path(u"a.mp4"_s)));
        QVERIFY2(converted.out.endsWith(u"1 of 3 videos converted\n"_s), qPrintable(converted.out));
        QCOMPARE(m_command->contents(u"a.mp4"_s), m_video);
        const QString plan = m_command->run(u"plan --to MP4 a.mov a.mp4 -d ."_s).out;
        QVERIFY2(plan.count(u'\n') == 1 && plan.contains(u"/a 2.mp4'"_s), qPrintable(plan));
    }

    void resultsOfOneRun_doNotReplaceEachOther()
    {
        m_command->shell(
            u"cp video.mp4 other.mov; touch folder/video.mkv; ln -s video.mkv folder/other.mkv"_s);
        QCOMPARE(
            m_command->run(u"convert --to MKV video.mp4 other.mov -d folder --overwrite"_s).end(),
            u"4: %1/other.mkv: The result would replace another one of this run.\n"_s.arg(
                m_command->path(u"folder"_s)));
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
        m_command->shell(u"echo precious > exists.mp4; ln -s exists.mp4 link.mp4"_s);
        QCOMPARE(m_command->run(u"convert --to MP4 video.mp4 --overwrite -o link.mp4"_s).end(),
            u"0: "_s);
        const QString result = m_command->path(u"exists.mp4"_s);
        QCOMPARE(Media::formatEntry(result, u"format_name"_s).left(3), u"mov"_s);
        QVERIFY(QFileInfo(m_command->path(u"link.mp4"_s)).isSymLink());
    }

    void strangeName_isConverted()
    {
        for (const QString &name : { u"-i.mp4"_s, u"100%d.mp4"_s, u" a'b\"c\n$HOME `id`;\\.mp4"_s,
                 u"🎬 фильм.mp4"_s, u"concat:x.mp4"_s, u"-"_s, u".mov"_s, u"e\u0301.mp4"_s,
                 QString(240, u'x') + u".mp4"_s }) {
            init();
            m_command->write(name, m_video);
            const Finished converted = m_command->run(u"convert --to MKV -d folder --"_s, { name });
            QCOMPARE(converted.end(), u"0: "_s);
            const QString last = converted.out.chopped(1).section(u'\n', -1);
            QVERIFY2(last.contains(u": converted to /"_s), qPrintable(converted.out));
            const QString result = (name.endsWith(u".mp4"_s) ? name.chopped(4) : name) + u".mkv"_s;
            QCOMPARE(m_command->files(u"folder"_s), result);
            // The result can be a video and a destination in its turn.
            QCOMPARE(
                m_command->run(u"convert --to MP4 -o -o.mp4"_s, { u"folder/"_s + result }).end(),
                u"0: "_s);
        }
    }
};

QTEST_GUILESS_MAIN(TestDestination)
#include "tst_destination.moc"
