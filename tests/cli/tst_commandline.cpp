// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"
#include "tests/fixtures/Rows.h"

using namespace Qt::StringLiterals;

namespace {

// Words with spaces between, '_' for a space inside a word and '~' for an empty word.
std::variant<CommandLine, Answer> parsed(const QString &text)
{
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    words.replaceInStrings(u"_"_s, u" "_s).replaceInStrings(u"~"_s, QString());
    return parsedCommandLine(QStringList{ u"program"_s } + words);
}

}

class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void line_isAnswered_data()
    {
        struct Row {
            const char *words;
            const char *about;
            ExitCode code = ExitCode::Usage;
        };
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("about");
        QTest::addColumn<ExitCode>("code");
        for (const auto &[words, about, code] : std::initializer_list<Row>{
                 { "", "Usage" },
                 { "burn a.mov", "burn" },
                 { "--json", "Usage" },
                 { "convert --to MP4 a.mov -o b --burn", "burn" },
                 { "convert --to MP4 -o b -i.mov", "Unknown option" },
                 { "formats a.mov", "takes no files" },
                 { "formats --to MP4", "--to" },
                 { "probe", "exactly one" },
                 { "probe a b", "exactly one" },
                 { "probe a --overwrite", "--overwrite" },
                 { "plan a b", "--to NAME" },
                 { "plan --to MP4", "either" },
                 { "plan --to MP4 a", "either" },
                 { "plan --to MP4 a b --info c", "either" },
                 { "plan --to MP4 --info ~", "--info" },
                 { "plan --to MP4 a b -o c", "--output" },
                 { "convert a -o b", "--to NAME" },
                 { "convert --to MP4 -o b", "no film" },
                 { "convert --to MP4 a", "--output or --folder" },
                 { "convert --to MP4 a -o b -d c", "--output or --folder" },
                 { "convert --to MP4 a b -o c", "--folder" },
                 { "convert --to MP4 a -o b -o c", "--output needs one value" },
                 { "convert --to MP4 --to AVI a -o b", "--to needs one value" },
                 { "convert --to MP4 a -o ~", "--output needs one value" },
                 { "convert --to MP4 a -o", "Missing value" },
                 { "convert --to ~ a -o b", "--to needs one value" },
                 { "convert --to mp4_hd_720 a -o b", "did you mean \"MP4 HD 720\"" },
                 { "convert --to MOV a -o b", "'formats' lists" },
                 { "convert --to all a -o b", "'formats' lists" },
                 { "--help", "COMMAND", ExitCode::Done },
                 { "-h", "Exit status", ExitCode::Done },
                 { "convert --help", "--overwrite", ExitCode::Done },
                 { "--help plan", "--info", ExitCode::Done },
                 { "probe --help --burn", "probe FILE", ExitCode::Done },
                 { "--version", "video-converter-cli 1.", ExitCode::Done },
             })
            QTest::newRow(words) << QString::fromUtf8(words) << QString::fromUtf8(about) << code;
    }
    void line_isAnswered()
    {
        QFETCH(const QString, words);
        QFETCH(const QString, about);
        const auto result = parsed(words);
        const auto *answer = std::get_if<Answer>(&result);
        QVERIFY(answer);
        QTEST(answer->code, "code");
        QVERIFY2(answer->text.contains(about), qPrintable(answer->text));
    }

    void convert_isUnderstood_data()
    {
        addRows<Utf8, Utf8, Utf8, Utf8>({ "words", "films", "output", "folder" },
            {
                { "output", "convert --to iPhone_6,_6s a.mov -o b.mp4", "a.mov", "b.mp4", "" },
                { "options first", "--json --verbose --overwrite --to=iPhone_6,_6s -ob convert a",
                    "a", "b", "" },
                { "folder", "convert a b c --to iPhone_6,_6s --folder d", "a b c", "", "d" },
                { "dashes", "convert --to iPhone_6,_6s -o -o.mp4 -- -i.mp4", "-i.mp4", "-o.mp4",
                    "" },
                { "film called convert", "convert convert --to iPhone_6,_6s -d .", "convert", "",
                    "." },
            });
    }
    void convert_isUnderstood()
    {
        QFETCH(const QString, words);
        const auto result = parsed(words);
        const auto *line = std::get_if<CommandLine>(&result);
        QVERIFY2(line, line ? "" : qPrintable(std::get<Answer>(result).text));
        QCOMPARE(line->verb, Verb::Convert);
        QTEST(line->films.join(u' '), "films");
        QTEST(line->output, "output");
        QTEST(line->folder, "folder");
        QCOMPARE(line->entries.size(), std::size_t{ 1 });
        QCOMPARE(line->entries.front().destDevice, u"iPhone 6, 6s"_s);
        for (const bool option : { line->json, line->verbose, line->overwrite })
            QCOMPARE(option, words.startsWith(u"--json"_s));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
