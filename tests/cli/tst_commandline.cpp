// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wrongUsage_isAnswered_data();
    void wrongUsage_isAnswered();
    void help_isAnswered_data();
    void help_isAnswered();
    void convert_isUnderstood_data();
    void convert_isUnderstood();
    void plan_takesAllEntries();
};

namespace {

// Words with spaces between, '_' for a space inside a word and '~' for an empty word.
std::variant<CommandLine, Answer> parsed(const QString &text)
{
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    words.replaceInStrings(u"_"_s, u" "_s).replaceInStrings(u"~"_s, QString());
    return parsedCommandLine(QStringList{ u"program"_s } + words);
}

}

void TestCommandLine::wrongUsage_isAnswered_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("about");
    const auto row = [](const char *words, const char *about) {
        QTest::newRow(words) << QString::fromLatin1(words) << QString::fromLatin1(about);
    };
    row("", "Usage");
    row("burn a.mov", "burn");
    row("--json", "Usage");
    row("convert --to MP4 a.mov -o b --burn", "burn");
    row("convert --to MP4 -o b -i.mov", "Unknown option");
    row("formats a.mov", "takes no files");
    row("formats --to MP4", "--to");
    row("probe", "exactly one");
    row("probe a b", "exactly one");
    row("probe a --overwrite", "--overwrite");
    row("plan a b", "--to NAME");
    row("plan --to MP4", "either");
    row("plan --to MP4 a", "either");
    row("plan --to MP4 a b --info c", "either");
    row("plan --to MP4 --info ~", "--info");
    row("plan --to MP4 a b -o c", "--output");
    row("convert a -o b", "--to NAME");
    row("convert --to MP4 -o b", "no film");
    row("convert --to MP4 a", "--output or --folder");
    row("convert --to MP4 a -o b -d c", "--output or --folder");
    row("convert --to MP4 a b -o c", "--folder");
    row("convert --to MP4 a -o b -o c", "--output needs one value");
    row("convert --to MP4 --to AVI a -o b", "--to needs one value");
    row("convert --to MP4 a -o ~", "--output needs one value");
    row("convert --to MP4 a -o", "Missing value");
    row("convert --to ~ a -o b", "--to needs one value");
    row("convert --to mp4_hd_720 a -o b", "did you mean \"MP4 HD 720\"");
    row("convert --to MOV a -o b", "'formats' lists");
    row("convert --to all a -o b", "'formats' lists");
}

void TestCommandLine::wrongUsage_isAnswered()
{
    QFETCH(QString, words);
    QFETCH(QString, about);
    const auto result = parsed(words);
    const auto *answer = std::get_if<Answer>(&result);
    QVERIFY(answer);
    QCOMPARE(answer->code, ExitCode::Usage);
    QVERIFY2(answer->text.contains(about), qPrintable(answer->text));
}

void TestCommandLine::help_isAnswered_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("about");
    QTest::newRow("general") << u"--help"_s << u"COMMAND"_s;
    QTest::newRow("short") << u"-h"_s << u"Exit status"_s;
    QTest::newRow("verb") << u"convert --help"_s << u"--overwrite"_s;
    QTest::newRow("before the verb") << u"--help plan"_s << u"--info"_s;
    QTest::newRow("in a wrong line") << u"probe --help --burn"_s << u"probe FILE"_s;
    QTest::newRow("version") << u"--version"_s << u"video-converter-cli 1."_s;
}

void TestCommandLine::help_isAnswered()
{
    QFETCH(QString, words);
    QFETCH(QString, about);
    const auto result = parsed(words);
    const auto *answer = std::get_if<Answer>(&result);
    QVERIFY(answer);
    QCOMPARE(answer->code, ExitCode::Done);
    QVERIFY2(answer->text.contains(about), qPrintable(answer->text));
}

void TestCommandLine::convert_isUnderstood_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QStringList>("films");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("folder");
    const QString none;
    QTest::newRow("output") << u"convert --to iPhone_6,_6s a.mov -o b.mp4"_s
                            << QStringList{ u"a.mov"_s } << u"b.mp4"_s << none;
    QTest::newRow("options first")
        << u"--json --verbose --overwrite --to=iPhone_6,_6s -ob convert a"_s
        << QStringList{ u"a"_s } << u"b"_s << none;
    QTest::newRow("folder") << u"convert a b c --to iPhone_6,_6s --folder d"_s
                            << QStringList{ u"a"_s, u"b"_s, u"c"_s } << none << u"d"_s;
    QTest::newRow("dashes") << u"convert --to iPhone_6,_6s -o -o.mp4 -- -i.mp4"_s
                            << QStringList{ u"-i.mp4"_s } << u"-o.mp4"_s << none;
    QTest::newRow("film called convert") << u"convert convert --to iPhone_6,_6s -d ."_s
                                         << QStringList{ u"convert"_s } << none << u"."_s;
}

void TestCommandLine::convert_isUnderstood()
{
    QFETCH(QString, words);
    const auto result = parsed(words);
    const auto *line = std::get_if<CommandLine>(&result);
    QVERIFY2(line, line ? "" : qPrintable(std::get<Answer>(result).text));
    QCOMPARE(line->verb, Verb::Convert);
    QTEST(line->films, "films");
    QTEST(line->output, "output");
    QTEST(line->folder, "folder");
    QCOMPARE(line->entries.size(), std::size_t{ 1 });
    QCOMPARE(line->entries.front().destDevice, u"iPhone 6, 6s"_s);
    for (const bool option : { line->json, line->verbose, line->overwrite })
        QCOMPARE(option, words.startsWith(u"--json"_s));
}

void TestCommandLine::plan_takesAllEntries()
{
    const auto result = parsed(u"plan --to all --info -"_s);
    const auto *line = std::get_if<CommandLine>(&result);
    QVERIFY(line);
    QCOMPARE(line->entries.size(), std::size_t{ 25 });
    QCOMPARE(line->info, u"-"_s);
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
