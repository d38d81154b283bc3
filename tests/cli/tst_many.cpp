// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/ToolSwap.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The words between backticks in a text.
QSet<QString> wordsIn(const QString &text)
{
    static const QRegularExpression word(u"`([a-zA-Z-]+)`"_s);
    QSet<QString> words;
    for (const QRegularExpressionMatch &match : word.globalMatch(text))
        words << match.captured(1);
    return words;
}

}

/// Folders and lists of videos, and what a script reads of their conversion.
class TestMany : public QObject {
    Q_OBJECT

    QList<QJsonObject> eventsOf(const QString &line)
    {
        QList<QJsonObject> events;
        for (const QString &each : m_command.run(line).out.split(u'\n', Qt::SkipEmptyParts))
            events << QJsonDocument::fromJson(each.toUtf8()).object();
        m_events += events;
        return events;
    }

    /// Such as "converted a.mkv", without the steps between; sorted, as they may come in any order.
    static QStringList ends(const QList<QJsonObject> &events)
    {
        QStringList texts;
        for (const QJsonObject &event : events) {
            const QString name = event[u"event"_s].toString();
            const QString output = event[u"output"_s].toString().section(u'/', -1);
            if (name != u"started" && name != u"progress" && name != u"summary")
                texts << (name + u' ' + output + u' ' + event[u"reason"_s].toString()).trimmed();
        }
        texts.sort();
        return texts;
    }

    Command m_command;
    QList<QJsonObject> m_events;

private Q_SLOTS:
    void initTestCase()
    {
        Media::video(m_command.path(u"video.mp4"_s), 3);
        m_command.shell(
            u"mkdir -p in/sub in/.git out; cp video.mp4 in/sub/a.mov; cp video.mp4 in/b.mov;"
            "cp video.mp4 in/.git/c.mov; cp video.mp4 in/.d.mov; echo text > in/notes.txt;"
            "ln -s .. in/sub/circle; echo nothing > in/empty.srt; echo x > in/broken.mov;"
            "echo x > in/b.jpg; echo x > in/b.info;"
            "yes 'Once upon a time.' | head -n 500 > in/tale.txt;"
            "touch in/sub/$(printf 'n\\377')"_s);
    }

    void tree_isConvertedOnce()
    {
        const QString line = u"convert --to mkv -r in -d out -j 2 --json"_s;
        QCOMPARE(ends(eventsOf(line)),
            (QStringList{ u"converted a.mkv"_s, u"converted b.mkv"_s,
                u"failed broken.mkv not-media"_s, u"failed n\uFFFD.mkv name-not-text"_s,
                u"skipped  not-media"_s, u"skipped  not-media"_s, u"skipped  not-media"_s,
                u"skipped  not-media"_s, u"skipped  too-short"_s }));
        m_command.shell(m_command.run(u"plan --to mkv -r in -d planned"_s).out);
        QCOMPARE(m_command.listing().filter(u"planned/"_s).filter(u".mkv"_s).size(), 2);
        QCOMPARE(m_command.listing().filter(u"out/"_s).filter(u".mkv"_s).size(), 2);

        // A cut result is made again, a whole one is left alone, also in the videos' own tree.
        const QString cut = m_command.path(u"out/b.mkv"_s);
        const qint64 size = QFileInfo(cut).size();
        QVERIFY(QFile::resize(cut, size / 2));
        const QDateTime whole = QFileInfo(m_command.path(u"out/sub/a.mkv"_s)).lastModified();
        m_command.shell(u"rm in/broken.mov in/sub/n*"_s);
        QCOMPARE(ends(eventsOf(line + u" --skip-existing"_s)).filter(u"mkv"_s),
            (QStringList{ u"converted b.mkv"_s, u"skipped a.mkv whole-result-exists"_s }));
        QCOMPARE(QFileInfo(cut).size(), size);
        QCOMPARE(QFileInfo(m_command.path(u"out/sub/a.mkv"_s)).lastModified(), whole);
        // What may be no result of ours is kept beside the new one.
        m_command.shell(u"touch -d '1 hour' in/b.mov; rm out/*earlier*; echo diary > out/b.mkv"_s);
        QVERIFY(ends(eventsOf(line + u" --skip-existing"_s)).contains(u"converted b.mkv"_s));
        QCOMPARE(m_command.shell(u"cat 'out/b (earlier).mkv'"_s), u"diary\n"_s);

        m_command.shell(u"touch in/b.mov; cp out/b*r* in/b.mkv"_s);
        QCOMPARE(m_command.run(u"convert --to mkv -r in -d in --overwrite -j 2"_s).exitCode, 0);
        QCOMPARE(m_command.shell(u"cat 'in/b (earlier).mkv'"_s), u"diary\n"_s);
        const Finished again = m_command.run(u"convert --to mkv -r in -d in --skip-existing"_s);
        QVERIFY2(again.out.endsWith(u"0 of 2 videos converted\n"_s), qPrintable(again.out));
        m_command.shell(u"rm in/*.mkv in/sub/a.mkv"_s);
    }

    void list_isDividedByNamesAlone()
    {
        m_command.shell(
            u"for i in 1 2 3 4 5 6; do mkdir n$i; cp video.mp4 n$i/v.mov; done;"
            "mv n6/v.mov n6/V.mov;"
            "ls n*/* | sed 's/$/\\r/' > list; ls -r n*/* | tr '\\n' '\\0' > reversed; mkdir o"_s);
        QStringList parts;
        for (const QString &shard : { u"list --shard 1/2"_s, u"reversed -0 --shard 2/2"_s }) {
            const QStringList part
                = ends(eventsOf(u"convert --to mkv --json -d o --files-from "_s + shard));
            QVERIFY(!part.isEmpty() && part.size() < 6);
            parts += part;
        }
        parts.sort();
        QCOMPARE(parts.join(u'|').remove(u"converted "_s),
            u"V 6.mkv|v 2.mkv|v 3.mkv|v 4.mkv|v 5.mkv|v.mkv"_s);
        const QString plan
            = m_command.run(u"plan --to mkv n3/../n3/v.mov n3/v.mov n2/../n1/v.mov -d o"_s).out;
        QCOMPARE(plan.count(u'\n'), 2);
        QVERIFY2(plan.contains(u"/n3/v.mov"_s) && plan.contains(u"/o/v 2.mkv' </dev/null\n"_s),
            qPrintable(plan));
    }

    void failure_touchesNoOther()
    {
        m_command.shell(
            u"echo bad > bad.mov; cp video.mp4 good.mov; touch taken.flv; cp video.mp4 taken.mov"_s);
        const auto events
            = eventsOf(u"convert --to flv bad.mov gone.mov taken.mov good.mov -d . -j 3 --json"_s);
        QCOMPARE(ends(events),
            (QStringList{ u"converted good.flv"_s, u"failed bad.flv not-media"_s,
                u"failed gone.flv no-such-file"_s, u"failed taken.flv destination-exists"_s }));
        eventsOf(u"convert --to flv good.mov -d nowhere --json"_s);
        eventsOf(u"convert --to flv --json"_s);
    }

    void events_tellTheProgress()
    {
        // A video of 100 s, converted in about 2 s.
        const ToolSwap swap(u"ffmpeg"_s, ToolSwap::With::FakeTool,
            R"(print:  Duration: 00:01:40.00, start: 0\n|copy|reports:100:20000)");
        QStringList names;
        qint64 last = -1;
        for (const QJsonObject &event :
            eventsOf(u"convert --to AVI --json -d . gone video.mp4"_s)) {
            const QString name = event[u"event"_s].toString();
            if (!names.endsWith(name))
                names << name;
            if (name != "progress"_L1)
                continue;
            QVERIFY(event[u"seconds"_s].toInteger() > last);
            last = event[u"seconds"_s].toInteger();
            QCOMPARE(event[u"percent"_s].toInteger(), last);
            QCOMPARE(event[u"input"_s].toString(), m_command.path(u"video.mp4"_s));
        }
        QCOMPARE(names.join(u' '), u"failed started progress converted summary"_s);
        QVERIFY(last > 0);
    }

    /// Reads the events of the tests above against the page.
    void events_areAsDocumented()
    {
        QFile file(QStringLiteral(JSON_PAGE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString page = QString::fromUtf8(file.readAll());
        const QString common = u"`event` `input` `output` "_s;
        QSet<QString> seen;
        for (const QJsonObject &event : std::as_const(m_events)) {
            const QString name = event[u"event"_s].toString();
            const QRegularExpression row(
                u"^\\| `%1` \\| ([^|]*)\\|"_s.arg(name), QRegularExpression::MultilineOption);
            const QRegularExpressionMatch match = row.match(page);
            QVERIFY2(match.hasMatch(), qPrintable(name));
            const QString fields = match.captured(1);
            const QSet<QString> required = wordsIn(common + fields.section(u'(', 0, 0));
            const QStringList keys = event.keys();
            const QSet<QString> given(keys.begin(), keys.end());
            const QByteArray text = QJsonDocument(event).toJson();
            QVERIFY2(given.contains(required), text.constData());
            QVERIFY2(wordsIn(common + fields).contains(given), text.constData());
            seen << name;
        }
        QCOMPARE(seen.size(), 7);
    }
};

QTEST_GUILESS_MAIN(TestMany)
#include "tst_many.moc"
