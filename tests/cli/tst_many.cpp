// SPDX-License-Identifier: MIT
#include "engine/Outcome.h"
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Events = QList<QJsonObject>;

Events eventsOf(const Finished &finished)
{
    Events events;
    for (const QString &line : finished.out.split(u'\n', Qt::SkipEmptyParts))
        events << QJsonDocument::fromJson(line.toUtf8()).object();
    return events;
}

/// "converted tree/a.mov", in the order of names; without what tells only of progress.
QStringList endsOf(const Events &events, const QString &root)
{
    QStringList ends;
    for (const QJsonObject &event : events) {
        const QString name = event[u"event"_s].toString();
        if (name != "started"_L1 && name != "progress"_L1 && name != "summary"_L1)
            ends << name + u' ' + event[u"input"_s].toString().sliced(root.size() + 1);
    }
    ends.sort();
    return ends;
}

/// The words in backquotes.
QSet<QString> wordsOf(const QString &text)
{
    static const QRegularExpression word(u"`([A-Za-z-]+)`"_s);
    QSet<QString> words;
    for (auto matches = word.globalMatch(text); matches.hasNext();)
        words << matches.next().captured(1);
    return words;
}

/// The sections of the page on JSON by their headings; "" is what stands before the first one.
QMap<QString, QString> sectionsOfPage()
{
    QFile page(QStringLiteral(VC_DOCS "/json.md"));
    if (!page.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qPrintable(page.fileName()));
    QMap<QString, QString> sections;
    for (const QString &section :
        QString::fromUtf8(u"\n"_s.toUtf8() + page.readAll()).split(u"\n## "_s))
        sections[section.startsWith(u'\n') ? QString() : section.section(u'\n', 0, 0)] = section;
    return sections;
}

}

/// Many videos in one run: where they come from, what is done already, and what is told of them.
class TestMany : public QObject {
    Q_OBJECT

    [[nodiscard]] QString filesIn(const QString &folder) const
    {
        QStringList files;
        for (const QString &entry : m_command->listing()) {
            const QString name = entry.section(u' ', 0, -2);
            if (name.startsWith(m_command->path(folder) + u'/') && !entry.endsWith(u" -1"))
                files << name.sliced(m_command->path(folder).size() + 1);
        }
        return files.join(u'|');
    }

    std::unique_ptr<Command> m_command;
    QByteArray m_video;

private Q_SLOTS:
    void initTestCase()
    {
        Command command;
        Media::video(command.path(u"video.mp4"_s), 2);
        m_video = command.contents(u"video.mp4"_s);
    }

    void init()
    {
        m_command = std::make_unique<Command>();
        m_command->write(u"video.mp4"_s, m_video);
    }

    void folder_isConvertedAsATree()
    {
        m_command->prepare(
            u"mkdir -p tree/sub/.hidden tree/out elsewhere; cd tree\n"
            "for name in a.mov a.mkv sub/a.mov sub/odd.bin .dot.mov sub/.hidden/a.mov\n"
            "do cp ../video.mp4 $name; done\n"
            "echo text > notes.txt; : > empty.mov; mkfifo pipe; ln -s .. sub/circle"_s);
        const QString convert = u"convert --to mkv -r tree -j 2 --json "_s;
        const QString root = m_command->path(u"tree"_s);
        const QString results = u"a 2.mkv|a.mkv|sub/a.mkv|sub/odd.mkv"_s;
        const QStringList inside{ u"converted a.mkv"_s, u"converted a.mov"_s,
            u"converted sub/a.mov"_s, u"converted sub/odd.bin"_s, u"skipped empty.mov"_s,
            u"skipped notes.txt"_s };

        // The user's own a.mkv is a video like the others.
        Finished finished = m_command->run(convert + u"-d tree/out"_s);
        QCOMPARE(finished.end(), u"0: "_s);
        QCOMPARE(endsOf(eventsOf(finished), root), inside);
        QCOMPARE(filesIn(u"tree/out"_s), results);
        finished = m_command->run(convert + u"-d elsewhere"_s);
        // The results inside are now videos of the tree.
        QCOMPARE(eventsOf(finished).last()[u"converted"_s].toInt(), 8);
        QVERIFY2(filesIn(u"elsewhere"_s).contains(u"out/sub/odd.mkv"), qPrintable(finished.out));

        // A cut result and one older than its video are made again, whole ones are left alone.
        m_command->prepare(
            u"truncate -s 9000 tree/out/a.mkv; touch -d '1 day ago' tree/out/sub/a.mkv"_s);
        finished = m_command->run(convert + u"-d tree/out --skip-existing"_s);
        QStringList again = inside;
        again.replaceInStrings(u"converted sub/odd.bin"_s, u"skipped sub/odd.bin"_s)
            .replaceInStrings(u"converted a.mov"_s, u"skipped a.mov"_s);
        again.sort();
        QCOMPARE(finished.end(), u"0: "_s);
        QCOMPARE(endsOf(eventsOf(finished), root), again);
        QCOMPARE(filesIn(u"tree/out"_s), results);

        // Beside the videos, results are known by their names.
        const QString beside = u"convert --to MKV -r tree/sub -d tree/sub"_s;
        QCOMPARE(m_command->run(beside).end(), u"0: "_s);
        const QString files = filesIn(u"tree/sub"_s);
        QVERIFY2(m_command->run(beside + u" --skip-existing"_s)
                     .out.endsWith(u"0 of 2 videos converted\n"_s),
            qPrintable(files));
        QCOMPARE(filesIn(u"tree/sub"_s), files);
    }

    void list_isRead()
    {
        m_command->prepare(u"mkdir out; cp video.mp4 ' a\nb.mov'; cp video.mp4 c.mov"_s);
        const QString convert = u"convert --to mp3 -d out --files-from "_s;
        const QByteArray names("./ a\nb.mov\0c.mov\0c.mov\0", 23);
        QCOMPARE(m_command->run(convert + u"- -0 --quiet"_s, {}, names).end(), u"0: "_s);
        QCOMPARE(filesIn(u"out"_s), u" a\nb.mp3|c.mp3"_s);
        // One failure touches no other video.
        m_command->write(u"list"_s, "gone.mov\n\nvideo.mp4\n");
        const Finished finished = m_command->run(convert + u"list -j 2"_s);
        QCOMPARE(finished.end(), u"3: gone.mov: There is no such file.\n"_s);
        QVERIFY(QFile::exists(m_command->path(u"out/video.mp3"_s)));
        QCOMPARE(m_command->run(convert + u"nothing"_s).exitCode, 3);
    }

    // Numbers and parts come from the set of names alone.
    void results_keepTheirNames()
    {
        m_command->prepare(u"mkdir a b c; for name in a b c; do cp video.mp4 $name/x.mov; done"_s);
        QStringList names{ u"a/x.mov"_s, u"b/x.mov"_s, u"c/x.mov"_s };
        const auto planned = [&](const QString &options) {
            QStringList lines
                = m_command->run(u"plan --to MKV -d . "_s + options, names).out.split(u'\n');
            lines.removeAll(QString());
            lines.sort();
            return lines;
        };
        const QStringList all = planned({});
        QCOMPARE(all.size(), 3);
        std::reverse(names.begin(), names.end());
        QCOMPARE(planned({}), all);
        QStringList parts = planned(u"--shard 1/2"_s) + planned(u"--shard 2/2"_s);
        parts.sort();
        QCOMPARE(parts, all);
    }

    void events_areThoseOfThePage()
    {
        m_command->prepare(u"mkdir tree out; cp video.mp4 tree/a.mov; echo text > tree/notes.txt\n"
                           "head -c 20000 video.mp4 > broken.mp4; echo old > out/video.mkv"_s);
        Events events;
        for (const QString &line : { u"-r tree -d out"_s, u"-r tree -d out --skip-existing"_s,
                 u"video.mp4 broken.mp4 gone.mp4 -d out -j 2"_s, u"video.mp4 -o out/x.avi"_s,
                 u"video.mp4 -d nowhere"_s, u"video.mp4 -d out --overwrite --verbose"_s })
            events += eventsOf(m_command->run(u"convert --json --to MKV "_s + line));
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
            "print:  Duration: 00:01:40.00, start: 0\\n|output|reports:50:10000|forever");
        const auto process = m_command->start(u"convert --json --to MKV video.mp4 -o c.mkv"_s);
        QTRY_VERIFY_WITH_TIMEOUT(process->peek(65536).contains("\"progress\""), 10'000);
        process->terminate();
        events += eventsOf(Command::wait(*process));

        const QMap<QString, QString> page = sectionsOfPage();
        const QSet<QString> common = wordsOf(page[QString()]);
        const QSet<QString> reasons = wordsOf(page[u"Reasons"_s]);
        QSet<QString> undocumented;
        QSet<QString> seen;
        for (const QJsonObject &event : events) {
            const QString section = u"Event `%1`"_s.arg(event[u"event"_s].toString());
            seen << section;
            const QStringList fields = event.keys();
            QVERIFY2(
                fields.contains(u"input"_s) && fields.contains(u"output"_s), qPrintable(section));
            undocumented += QSet<QString>(fields.begin(), fields.end()) - common
                - wordsOf(page.value(section));
            if (event.contains(u"reason"_s))
                undocumented += QSet{ event[u"reason"_s].toString() } - reasons
                    - wordsOf(page.value(section));
        }
        QCOMPARE(undocumented, QSet<QString>());
        QCOMPARE(QStringList(seen.begin(), seen.end()).filter(u"Event"_s).size(),
            page.keys().filter(u"Event"_s).size());

        QSet<QString> named{ u"usage"_s };
        for (int reason = 1; reason <= static_cast<int>(Reason::Cancelled); ++reason)
            named << nameOf(Outcome{ static_cast<Reason>(reason) });
        QCOMPARE(reasons, named);
    }
};

QTEST_GUILESS_MAIN(TestMany)
#include "tst_many.moc"
