// SPDX-License-Identifier: MIT
#include "cli/ProgressLine.h"
#include "cli/ShownText.h"
#include "cli/ToolFailure.h"
#include "tests/fixtures/Rows.h"

#include <clocale>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Progress, names and reasons as a terminal shows them.
class TestTerminalText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Widths of characters are those of the locale.
    void initTestCase() { std::setlocale(LC_ALL, "C.UTF-8"); }

    void progress_tellsWhatIsKnown_data()
    {
        addRows<qint64, qint64, qint64, Utf8>({ "completed", "total", "milliseconds", "text" },
            {
                { "start", 0, -1, 0, "0s so far" },
                { "length unknown", 0, -1, 61'500, "1m 1s so far" },
                { "length of nothing", 0, 0, 2000, "2s so far" },
                { "no report yet", 0, 100, 5000, "  0%" },
                { "too early for a forecast", 10, 100, 900, " 10%" },
                { "half", 50, 100, 10'000, " 50%  5.0x  10s left" },
                { "fast", 5000, 7200, 10'000, " 69%  500x  5s left" },
                { "slow", 1, 7200, 60'000, "  0%  0.0x  4d 119h 59m 0s left" },
                { "done", 100, 100, 10'000, "100%  10x  0s left" },
                { "never rounded up", 9999, 10'000, 1'000'000, " 99%  10.0x  1s left" },
                { "centuries", 1, 9'000'000'000'000, 60'000, "  0%  0.0x" },
            });
    }
    void progress_tellsWhatIsKnown()
    {
        QFETCH(const qint64, completed);
        QFETCH(const qint64, total);
        QFETCH(const qint64, milliseconds);
        QTEST(progressText({ completed, total, std::chrono::milliseconds(milliseconds) }), "text");
    }

    void bar_fitsTheTerminal_data()
    {
        QTest::addColumn<QString>("film");
        QTest::newRow("short name") << u"a.mov"_s;
        QTest::newRow("wide name") << QString(60, u'片');
        QTest::newRow("emoji") << u"🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬🎬.mov"_s;
    }
    void bar_fitsTheTerminal()
    {
        QFETCH(const QString, film);
        for (const int columns : { 1, 20, 40, 60, 80, 100, 400 }) {
            for (const ProgressSample &sample : { ProgressSample{ 0, -1, 100'000s },
                     ProgressSample{ 37, -1, 100'000s }, ProgressSample{ 0, 100, 100'000s },
                     ProgressSample{ 37, 100, 100'000s }, ProgressSample{ 100, 100, 100'000s } }) {
                const QString bar = progressBar(film, sample, columns);
                QVERIFY2(columnsOf(bar) <= std::max(1, columns - 1), qPrintable(bar));
            }
            const QString bar = progressBar(film, { 50, 100, 10s }, columns);
            if (columns >= 80)
                QVERIFY2(
                    bar.count(u'#') == bar.count(u'-') && bar.endsWith(u" 50%  5.0x  10s left"_s),
                    qPrintable(bar));
        }
    }

    void bar_isBusyWithoutALength()
    {
        QStringList seen;
        for (int step = 0; step < 100; ++step) {
            const QString bar = progressBar(u"a"_s, { 0, -1, step * 200ms }, 80);
            QCOMPARE(bar.count(u"###"_s), 1);
            seen << bar.mid(bar.indexOf(u'['), bar.indexOf(u']') - bar.indexOf(u'['));
        }
        QCOMPARE(seen.first().size(), seen.last().size());
        seen.removeDuplicates();
        QVERIFY2(seen.size() > 10, "the block moves");
    }

    void word_isQuotedForAShell_data()
    {
        addRows<Utf8, Utf8>({ "word", "quoted" },
            {
                { "plain", "/a/b-1_2.mp4", "/a/b-1_2.mp4" },
                { "empty", "", "''" },
                { "space", "a b", "'a b'" },
                { "quotes", "a'b\"c", "'a'\\''b\"c'" },
                { "line end", "a\n", "'a\n'" },
                { "filter", "scale=min(iw\\,600):-1", "'scale=min(iw\\,600):-1'" },
                { "home", "~", "'~'" },
                { "other letters", "ä", "'ä'" },
            });
    }
    void word_isQuotedForAShell()
    {
        QFETCH(const QString, word);
        QTEST(shellQuoted(word), "quoted");
    }

    void name_isMadeHarmless()
    {
        QCOMPARE(printable(u"a\n\u001b[31m\u007f\u009b\u202e\u2028b"_s), u"a??[31m????b"_s);
        QCOMPARE(printable(u"100%d ä 👩‍👩‍👧 \u200f"_s),
            u"100%d ä 👩‍👩‍👧 \u200f"_s);
        QCOMPARE(elided(u"abcdefghij"_s, 5), u"ab…ij"_s);
        QCOMPARE(elided(u"片片片片"_s, 8), u"片片片片"_s);
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
            {
                { "disk full in the middle",
                    report + "av_interleaved_write_frame(): No space left on device\n" + end,
                    noSpace },
                { "disk full, then an encoder that can't start",
                    "Could not write header for output file #0: No space left on device\n"
                    "Error initializing output stream 0:0 -- \nConversion failed!\n",
                    noSpace },
                { "a name that sounds like a reason",
                    "Input #0, mov, from '/x/No space left on device':\n/x/a: Permission denied\n"
                        + end,
                    "Permission was denied to read the film or to write the result." },
                { "damaged frames on the way, then no space",
                    "Error while decoding stream #0:0: Invalid data found when processing input\n"
                        + report + "av_interleaved_write_frame(): No space left on device\n",
                    noSpace },
                { "encoder", "Unknown encoder 'libxvid'\n" + end,
                    "The installed tool has no encoder libxvid." },
                { "muxer", "Requested output format 'webm' is not a suitable output format\n",
                    "The installed tool can't write the format webm." },
                { "gone", "/x/gone.mov: No such file or directory\n",
                    "The film or the destination's folder has gone." },
                { "nothing to take", "Output file #0 does not contain any stream\n" + end,
                    "The film holds nothing that this output can take." },
                { "encoder options",
                    "[libmp3lame @ 0x56] Specified sample rate 12345 is not supported\nError "
                    "initializing output stream 0:0 -- Error while opening encoder for output\n"
                        + end,
                    "The encoder does not take the film's picture or sound as it is." },
                { "damaged", "a.mov: Invalid data found when processing input\n" + end,
                    "The film's data is damaged." },
                { "silent", "\nThe tool has been silent for too long and was stopped.\n",
                    "The tool was silent for too long and was stopped." },
                { "asked to end", "Exiting normally, received signal 15.\n",
                    "The tool was stopped from outside." },
                { "killed", "  Metadata:\n" + report + report, killed },
                { "killed, sound only",
                    "size=       0kB time=00:00:01.00 bitrate= 128.0kbits/s speed=1x    \r",
                    killed },
                { "killed at once", "Press [q] to stop, [?] for help\n", killed },
                { "nothing said", "", killed },
                { "unknown reason",
                    "  Metadata:\nToo many cooks.\r[libx264 @ 0x55] kb/s:128.50\n" + end,
                    "The tool failed: Too many cooks." },
                { "chatter alone", end, "The tool failed: Conversion failed!" },
                { "percent signs, control characters, bad bytes", "100%d %s \x1b[31mred \xff\n",
                    "The tool failed: 100%d %s ?[31mred \ufffd" },
                { "long ago", ": No space left on device\n" + QByteArray("chatter\n").repeated(300),
                    "The tool failed: chatter" },
            });
    }
    void failure_getsASentence()
    {
        QFETCH(const QByteArray, output);
        QTEST(toolFailureSentence(output), "sentence");
    }
};

QTEST_GUILESS_MAIN(TestTerminalText)
#include "tst_terminaltext.moc"
