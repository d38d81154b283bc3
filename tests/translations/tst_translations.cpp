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

private:
    Table m_sources;
    const Bundle m_bundle{ QStringLiteral(BUNDLE) };

private Q_SLOTS:
    void initTestCase()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"sources.ts"_s);
        QStringList arguments = QStringLiteral("-silent:" TRANSLATED_FOLDERS).split(u':');
        arguments << u"-ts"_s << path;
        QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE), arguments), 0);
        m_sources = readTable(path, u"source"_s);
        QVERIFY(m_sources.size() > 100);
    }

    void table_isCompleteAndFits_data()
    {
        QTest::addColumn<QString>("language");
        const QDir tables(QStringLiteral(TABLES), u"video-converter_*.ts"_s);
        for (const QString &name : tables.entryList())
            QTest::newRow(qPrintable(name)) << name.section(u'_', 1).chopped(3);
    }

    void table_isCompleteAndFits()
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

    void language_isTheFirstThatTheBundleHas()
    {
        const QStringList has = m_bundle.localizations();
        QCOMPARE(Translation::language({ u"pt-PT"_s, u"pt-Latn-PT"_s }, has), u"pt-BR"_s);
        QCOMPARE(
            Translation::language({ u"zh-CN"_s, u"zh-Hans-CN"_s, u"en"_s }, has), u"zh-Hans"_s);
        QCOMPARE(Translation::language({ u"zh-TW"_s, u"zh-Hant-TW"_s }, has), u"en"_s);
        QCOMPARE(Translation::language({ u"it-IT"_s, u"it"_s, u"de-DE"_s }, has), u"de"_s);
        QCOMPARE(Translation::language({ u"en-GB"_s, u"en-Latn-GB"_s, u"fr"_s }, has), u"en"_s);
        QCOMPARE(Translation::language({ u"C"_s }, has), u"en"_s);
    }

    void program_speaksTheLanguageOfTheDesktop()
    {
        const LocalizedText known{ "Alert.Yes", "", "Yes" };
        QCOMPARE(localized(known), u"Yes"_s);
        qputenv("LC_ALL", "ru_RU.UTF-8");
        qputenv("LANGUAGE", "ru");
        Translation::install(m_bundle);
        QCOMPARE(localized(known), u"Да"_s);
        QCOMPARE(localized({ "Other.key", "", "Nö" }), u"Nö"_s);
        QCOMPARE(localized({ "%dm – %ds", "" }), u"%dm – %ds"_s);
        QCOMPARE(
            DurationInfo(90061).toString().replace(QChar::Nbsp, u' '), u"1 д 25 ч 1 мин 1 с"_s);
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
