// SPDX-License-Identifier: MIT
#include "cli/arguments/CommandLine.h"
#include "cli/report/ProgressLine.h"
#include "cli/report/ShownText.h"
#include "engine/Outcome.h"
#include "tests/fixtures/Rows.h"

#include <QFile>

#include <clocale>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Words with spaces between, '_' for a space inside a word and '~' for an empty word.
std::variant<CommandLine, UsageText> parsed(const QString &text)
{
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    words.replaceInStrings(u"_"_s, u" "_s).replaceInStrings(u"~"_s, QString());
    return parsedCommandLine(QStringList{ u"program"_s } + words);
}

}

/// What a user types, and what a terminal shows: pure functions, without a process.
class TestTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Widths of characters are those of the locale.
    void initTestCase() { std::setlocale(LC_ALL, "C.UTF-8"); }

    void line_isAnswered_data()
    {
        const auto usage = ExitCode::Usage;
        const auto done = ExitCode::Done;
        // The rows' names are the words.
        addRows<ExitCode, Utf8>({ "code", "about" },
            { { "", usage, "Usage" }, { "burn a.mov", usage, "no command named \"burn\"" },
                { "convert --to MP4 -o b -i.mov", usage, "Unknown option" },
                { "probe", usage, "needs a file" },
                { "probe a --overwrite", usage, "'probe' does not take --overwrite" },
                { "plan -j 2", usage, "take" }, { "probe --info a", usage, "take" },
                { "convert --info a", usage, "take" }, { "probe -r a", usage, "take" },
                { "plan --to MP4", usage, "--info alone" },
                { "plan --to MP4 a b --info c", usage, "--info alone" },
                { "convert --to MP4 -o b", usage, "no video" },
                { "convert --to MP4 a", usage, "--output or --folder" },
                { "convert --to MP4 a -o b -d c", usage, "--output or --folder" },
                { "convert --to MP4 a b -o c", usage, "use --folder" },
                { "convert --to MP4 --to AVI a -o b", usage, "--to needs one value" },
                { "convert --to hd a -o b", usage, "did you mean \"MP4 HD 720\", \"MP4 FullHD" },
                { "convert --to mp4 a -o b.avi", usage, "\"b.avi\" is no name for \"MP4\"" },
                { "convert --to mp4 -r a -o b", usage, "use --folder" },
                { "convert --to mp4 a -d b -j two", usage, "--jobs takes a number" },
                { "convert --to mp4 a -d b --shard 3/2", usage, "2/8" },
                { "convert --to mp4 a -d b --overwrite --skip-existing", usage, "exclude" },
                { "convert --to all a -o b", usage, "'formats' lists" },
                { "-h", done, "Exit status" }, { "--help plan", done, "--info" },
                { "probe --help --burn", done, "probe FILE" },
                { "--version", done, "video-converter-cli 1." } });
    }
    void line_isAnswered()
    {
        QFETCH(const QString, about);
        const auto result = parsed(QString::fromUtf8(QTest::currentDataTag()));
        const auto *answer = std::get_if<UsageText>(&result);
        QVERIFY(answer);
        QTEST(answer->code, "code");
        QVERIFY2(answer->text.contains(about), qPrintable(answer->text));
    }

    void convert_isUnderstood()
    {
        for (const QString &words : { u"convert --to iPhone_6,_6s convert b -d ."_s,
                 u"--json --verbose --overwrite --to=iPhone_6,_6s -d. convert convert -- b"_s }) {
            const auto result = parsed(words);
            const auto *line = std::get_if<CommandLine>(&result);
            QVERIFY2(line, qPrintable(words));
            QCOMPARE(line->verb, Verb::Convert);
            QCOMPARE(line->inputs, (QStringList{ u"convert"_s, u"b"_s }));
            QCOMPARE(line->folder, u"."_s);
            QCOMPARE(line->entries.front().destDevice, u"iPhone 6, 6s"_s);
            for (const bool option : { line->json, line->verbose, line->overwrite })
                QCOMPARE(option, words.startsWith(u"--json"_s));
        }
    }

    void documents_nameAllOptions()
    {
        for (const QString &document : { u"man"_s, u"bash"_s, u"zsh"_s, u"fish"_s }) {
            const QString text = generatedText(document).replace(u"\\-"_s, u"-"_s);
            for (const OptionRow &row : optionRows)
                QVERIFY2(text.contains((document == u"fish" ? u" -l "_s : u"--"_s) + row.name),
                    row.name.data());
            QVERIFY(document == u"man" || text.contains(u"MP4 HD 720\n"_s));
        }
    }

    void reasons_areDocumented()
    {
        QFile file(QStringLiteral(JSON_PAGE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString page = QString::fromUtf8(file.readAll());
        for (int reason = 1; reason <= static_cast<int>(Reason::Cancelled); ++reason) {
            const QString name = nameOf({ static_cast<Reason>(reason) });
            QVERIFY2(page.contains(u'`' + name + u'`'), qPrintable(name));
        }
    }

    void progress_tellsWhatIsKnown()
    {
        // The length is unknown, or none.
        QCOMPARE(progressText({ 0, -1, 61'500ms }), u"1m 1s so far"_s);
        QCOMPARE(progressText({ 0, 0, 2s }), u"2s so far"_s);
        // Too early for a speed.
        QCOMPARE(progressText({ 29, 100, 900ms }), u" 29%"_s);
        // Never rounded up.
        QCOMPARE(progressText({ 9999, 10'000, 1000s, 1 }), u" 99%  10.0x  1s left"_s);
    }

    void bar_fitsTheTerminal()
    {
        const ProgressSample half{ 50, 100, 10s, 10 };
        for (const QString &video : { u"a.mov"_s, QString(60, u'片'), u"🎬🎬🎬🎬.mov"_s }) {
            for (const int columns : { 1, 20, 40, 60, 80, 100, 400 }) {
                for (const ProgressSample &sample : { half, ProgressSample{ 37, -1, 100'000s } }) {
                    const QString bar = progressBar(video, sample, columns);
                    QVERIFY2(columnsOf(bar) <= std::max(1, columns - 1), qPrintable(bar));
                }
            }
            const QString bar = progressBar(video, half, 80);
            QVERIFY2(bar.endsWith(u" 50%  5.0x  10s left"_s), qPrintable(bar));
            QCOMPARE(bar.count(u'#'), bar.count(u'-'));
        }
    }

    void name_isMadeHarmless()
    {
        QCOMPARE(printable(u"a\n\u001b[31m\u007f\u009b\u202e\u2028b"_s), u"a??[31m????b"_s);
        const QString harmless = u"100%d ä 👩‍👩‍👧 \u200f"_s;
        QCOMPARE(printable(harmless), harmless);
        QCOMPARE(elided(u"abcdefghij"_s, 5), u"ab…ij"_s);
    }
};

QTEST_GUILESS_MAIN(TestTexts)
#include "tst_texts.moc"
