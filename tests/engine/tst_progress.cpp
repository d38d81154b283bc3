// SPDX-License-Identifier: MIT
#include "engine/Progress.h"
#include "engine/RunReport.h"
#include "engine/TimeLeft.h"
#include "engine/ToolOutput.h"
#include "support/Text.h"
#include "tests/fixtures/Rows.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// How far a run has come: read from the tool's output, and passed on.
class TestProgress : public QObject {
    Q_OBJECT

    using Key = Progress::Key;

private Q_SLOTS:
    void output_isRead()
    {
        // The search ends amid a character, and a part beyond 64 bits counts as 0.
        for (const auto &[text, seconds] :
            { std::pair{ u"00:75:23.95"_s, 4523 }, { u"at 1:2:3 of it"_s, 3723 },
                { u"00:00:07😀"_s, 7 }, { u"99999999999999999999:00:07"_s, 7 }, { u"N/A"_s, -1 } })
            QCOMPARE(ToolOutput::getFFMpegDuration(text).value_or(-1), seconds);
        for (const auto &[end, position] : { std::pair{ u"time=00:00:12.50 bitrate=2\r"_s, 12 },
                 { u"time=00:00:12"_s, 10 }, { u"time=: bitrate="_s, -1 } })
            QCOMPARE(ToolOutput::lastReportedPosition(u"time=00:00:10.00 bitrate=1\r"_s + end)
                         .value_or(-1),
                position);
        QCOMPARE(ToolOutput::decodedBlock("a\nпривет\n"), u"a\nпривет\n"_s);
        QCOMPARE(ToolOutput::decodedBlock("title: \xD0\nDuration: 1\r"), u"Duration: 1\r"_s);
        QCOMPARE(ToolOutput::decodedBlock("a\r\xFF\rb"), u"a\rb"_s);
        QCOMPARE(ToolOutput::decodedBlock("\xFF"), QString());
    }

    void scanner_agreesWithASearchOfTheWholeText()
    {
        // Matches across blocks, false starts, and characters of more than one unit, which shorten
        // the range of the search until more text comes.
        const QString whole = u"Duration: N/A\r\nDuration: \n😀👨‍👩‍👧e\u0301\rtitle"
                              "Duration: 00:01:40.00, start: 0\nDuration: 00:00:07.00, start:\n"_s;
        for (qsizetype size = 1; size < whole.size(); ++size) {
            DurationScanner scanner;
            for (qsizetype end = 0; end < whole.size();) {
                const QString block = whole.mid(end, size);
                scanner.append(block);
                end += block.size();
                QCOMPARE(scanner.duration(),
                    ToolOutput::printedSeconds(
                        Pattern::matchRegex(whole.first(end), ToolOutput::regexprDuration(), 1)));
            }
            QCOMPARE(scanner.duration(), std::optional(qint64{ 100 }));
        }
    }

    void observers_hearTheirKeyUntilTheyAreRemoved()
    {
        Progress progress(100);
        QList<Key> heard;
        const auto hear = [&](Key key) { heard.append(key); };
        progress.addObserver(Key::FractionCompleted, this, hear);
        progress.addObserver(Key::CompletedUnitCount, this, hear);
        progress.setTotalUnitCount(50);
        QCOMPARE(std::exchange(heard, {}), QList<Key>{ Key::FractionCompleted });
        progress.setCompletedUnitCount(1);
        QCOMPARE(std::exchange(heard, {}),
            (QList<Key>{ Key::FractionCompleted, Key::CompletedUnitCount }));
        progress.removeObserver(Key::FractionCompleted, &progress);
        progress.removeObserver(Key::CompletedUnitCount, this);
        // An observer may remove itself while it is called.
        int calls = 0;
        progress.addObserver(Key::CompletedUnitCount, &progress, [&](Key) {
            ++calls;
            progress.removeObserver(Key::CompletedUnitCount, &progress);
        });
        progress.setCompletedUnitCount(2);
        QCOMPARE(std::exchange(heard, {}), QList<Key>{ Key::FractionCompleted });
        progress.setCompletedUnitCount(3);
        QCOMPARE(calls, 1);
        QCOMPARE(heard, QList<Key>{ Key::FractionCompleted });
    }

    void cancellationHandler_runsOnceWhenever()
    {
        for (const bool setFirst : { true, false }) {
            Progress progress(-1);
            int runs = 0;
            if (!setFirst)
                progress.cancel();
            progress.setCancellationHandler([&] { runs += progress.isCancelled() ? 1 : 100; });
            QCOMPARE(runs, setFirst ? 0 : 1);
            progress.cancel();
            progress.cancel();
            QCOMPARE(runs, 1);
        }
    }

    void timeLeft_speaksWhenSteady_data()
    {
        using Speeds = QList<double>;
        // Each speed holds for half a second; -1 stands for no estimate.
        addRows<Speeds, int>({ "speeds", "seconds" },
            { { "too early", Speeds(5, 0.01), -1 }, { "steady", Speeds(20, 0.01), 40 },
                { "nothing moves", Speeds(20, 0.0), -1 },
                { "a little slower", Speeds(30, 0.01) + Speeds(6, 0.007), 35 },
                { "suddenly slower", Speeds(10, 0.02) + Speeds(10, 0.005), -1 },
                { "slower for long", Speeds(10, 0.02) + Speeds(24, 0.005), 70 },
                { "done", Speeds(20, 0.05), -1 }, { "days", Speeds(20, 0.000001), -1 } });
    }
    void timeLeft_speaksWhenSteady()
    {
        QFETCH(const QList<double>, speeds);
        TimeLeft timeLeft;
        double fraction = 0;
        auto elapsed = 0ms;
        std::optional<qint64> left;
        for (const double speed : speeds)
            left = timeLeft.at(elapsed += 500ms, std::min(1.0, fraction += speed));
        QTEST(int(left.value_or(-1)), "seconds");
    }

    void failure_getsASentence_data()
    {
        const QByteArray report = "frame=   24 fps= 24 q=0.0 size=       0kB time=00:00:00.00 "
                                  "bitrate=N/A speed=   0x    \r";
        const QByteArray end = "[AVIOContext @ 0x555] Statistics: 70164 bytes read, 2 seeks\n"
                               "Conversion failed!\n";
        const Utf8 noSpace = "There is no space left on the destination's disk.";
        const Utf8 killed = "The tool was killed before it was done.";
        addRows<QByteArray, Utf8>({ "output", "sentence" },
            { { "disk full in the middle",
                  report + "av_interleaved_write_frame(): No space left on device\n" + end,
                  noSpace },
                { "disk full, then an encoder that can't start",
                    "Could not write header for output file #0: No space left on device\n"
                    "Error initializing output stream 0:0 -- \nConversion failed!\n",
                    noSpace },
                { "a name that sounds like a reason",
                    "Input #0, mov, from '/x/No space left on device':\n/x/a: Permission denied\n"
                        + end,
                    "Permission was denied to read the video or to write the result." },
                { "encoder", "Unknown encoder 'libxvid'\n" + end,
                    "The installed tool has no encoder libxvid." },
                { "encoder options",
                    "Error initializing output stream 0:0 -- Error while opening encoder\n" + end,
                    "The encoder can't handle this video's picture or sound." },
                { "limit met", "pthread_create: Resource temporarily unavailable\n" + end,
                    "The tool needed more memory, threads or files than any video should." },
                { "killed", "  Metadata:\n" + report + report, killed },
                { "killed at once", "Press [q] to stop, [?] for help\n", killed },
                { "nothing said", "", killed },
                { "unknown reason",
                    "  Metadata:\nToo many cooks.\r[libx264 @ 0x55] kb/s:128.50\n" + end,
                    "The tool failed: Too many cooks." },
                { "percent signs, control characters, bad bytes", "100%d %s \x1b[31mred \xff\n",
                    "The tool failed: 100%d %s \x1b[31mred \ufffd" },
                { "long ago", ": No space left on device\n" + QByteArray("chatter\n").repeated(300),
                    "The tool failed: chatter" } });
    }
    void failure_getsASentence()
    {
        QFETCH(const QByteArray, output);
        QTEST(sentenceOf(toolFailure(output)), "sentence");
    }
};

QTEST_GUILESS_MAIN(TestProgress)
#include "tst_progress.moc"
