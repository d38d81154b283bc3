// SPDX-License-Identifier: MIT
#include "support/DurationInfo.h"
#include "support/Localized.h"
#include "support/Translation.h"

#include <QDir>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/// Texts by context, source and comment.
using Table = QMap<QString, QString>;

/// The "source" or "translation" of each message; an unfinished one counts as empty.
Table readTable(const QString &path, const QString &taken)
{
    Table table;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return table;
    const QStringList branches{ u"TS"_s, u"context"_s, u"message"_s };
    QXmlStreamReader xml(&file);
    QMap<QString, QString> texts;
    for (; !xml.atEnd(); xml.readNext()) {
        const QString name = xml.name().toString();
        if (!xml.isStartElement() || branches.contains(name))
            continue;
        texts[name] = xml.attributes().hasAttribute("type"_L1) ? QString() : xml.readElementText();
        if (name == "translation"_L1)
            table[texts[u"name"_s] + u": "_s + texts[u"source"_s] + u' ' + texts.take(u"comment"_s)]
                = texts[taken];
    }
    return table;
}

/// What a format takes, whatever the order: "%2$@ %1$d" gives "1d 2@", as does "%d %@".
QString directives(const QString &format)
{
    static const QRegularExpression directive(uR"(%(?:(\d+)\$)?([d@%]))"_s);
    QStringList found;
    int next = 0;
    for (auto matches = directive.globalMatch(format); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool isNext = !match.hasCaptured(1) && match.captured(2) != u"%"_s;
        found << (isNext ? QString::number(++next) : match.captured(1)) + match.captured(2);
    }
    found.sort();
    return found.join(u' ');
}

QString fault(const QString &source, const QString &translation)
{
    if (source.isEmpty())
        return u"no longer in the sources"_s;
    if (translation.trimmed().isEmpty())
        return u"missing, unfinished or empty"_s;
    return directives(translation) == directives(source) ? QString() : u"other directives"_s;
}

}

class TestTranslations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void table_isCompleteAndFits_data();
    void table_isCompleteAndFits();
    void language_isTheFirstThatTheBundleHas_data();
    void language_isTheFirstThatTheBundleHas();
    void program_speaksTheLanguageOfTheDesktop();

private:
    Table m_sources;
    const Bundle m_bundle{ QStringLiteral(BUNDLE) };
};

void TestTranslations::initTestCase()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"sources.ts"_s);
    QStringList arguments = QStringLiteral("-silent:" TRANSLATED_FOLDERS).split(u':');
    arguments << u"-ts"_s << path;
    QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE), arguments), 0);
    m_sources = readTable(path, u"source"_s);
    QVERIFY(m_sources.size() > 100);
}

void TestTranslations::table_isCompleteAndFits_data()
{
    QTest::addColumn<QString>("language");
    const QDir tables(QStringLiteral(TABLES), u"video-converter_*.ts"_s);
    for (const QString &name : tables.entryList())
        QTest::newRow(qPrintable(name)) << name.section(u'_', 1).chopped(3);
}

void TestTranslations::table_isCompleteAndFits()
{
    QFETCH(QString, language);
    const QString path = QStringLiteral(TABLES) + u"/video-converter_"_s + language + u".ts"_s;
    const Table table = readTable(path, u"translation"_s);
    Table all = m_sources;
    all.insert(table);
    QStringList faults;
    for (const QString &key : all.keys()) {
        if (const QString what = fault(m_sources.value(key), table.value(key)); !what.isEmpty())
            faults << key + u" -> "_s + what;
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    QVERIFY(QTranslator().load(m_bundle.localizationPath(language) + u"/video-converter.qm"_s));
}

void TestTranslations::language_isTheFirstThatTheBundleHas_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("language");
    QTest::newRow("of another country") << u"pt-PT pt-Latn-PT"_s << u"pt-BR"_s;
    QTest::newRow("same script") << u"zh-CN zh-Hans-CN zh en"_s << u"zh-Hans"_s;
    QTest::newRow("other script") << u"zh-TW zh-Hant-TW"_s << u"en"_s;
    QTest::newRow("second choice") << u"it-IT it-Latn-IT it de-DE"_s << u"de"_s;
    QTest::newRow("English before another") << u"en-GB en-Latn-GB fr"_s << u"en"_s;
    QTest::newRow("no choice") << u"C"_s << u"en"_s;
}

void TestTranslations::language_isTheFirstThatTheBundleHas()
{
    QFETCH(QString, wanted);
    QTEST(Translation::language(wanted.split(u' '), m_bundle.localizations()), "language");
}

void TestTranslations::program_speaksTheLanguageOfTheDesktop()
{
    qputenv("LC_ALL", "ru_RU.UTF-8");
    qputenv("LANGUAGE", "ru");
    Translation::install(m_bundle);
    QCOMPARE(DurationInfo(90061).toString().replace(QChar::Nbsp, u' '), u"1 д 25 ч 1 мин 1 с"_s);
    QCOMPARE(localized({ "Alert.Yes", "", "Yes" }), u"Да"_s);
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
