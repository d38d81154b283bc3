// SPDX-License-Identifier: MIT
#include "support/DurationInfo.h"
#include "support/Localized.h"
#include "support/Translation.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

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

/// The source texts of a table. Those without a fitting translation are added to `faults`.
QStringList sources(const QString &path, QStringList &faults)
{
    static const QRegularExpression message(
        u"<source>(.*?)</source>.*?<translation(.*?)</translation>"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QString table = isOpen ? QString::fromUtf8(file.readAll()) : QString();
    QStringList texts;
    for (auto matches = message.globalMatch(table); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString translation = match.captured(2);
        texts << match.captured(1);
        // An unfinished one has an attribute that says so.
        if (!translation.startsWith(u'>') || translation.sliced(1).trimmed().isEmpty()
            || directives(translation) != directives(texts.last()))
            faults << texts.last() + u" ->"_s + translation;
    }
    texts.sort();
    return texts;
}

}

class TestTranslations : public QObject {
    Q_OBJECT

private:
    const QDir m_tables{ QStringLiteral(TABLES), u"video-converter_*.ts"_s };
    const Bundle m_bundle{ QStringLiteral(BUNDLE) };
    QTemporaryDir m_updated;

private Q_SLOTS:
    void initTestCase()
    {
        QStringList arguments
            = QStringLiteral("-silent:-no-obsolete:" TRANSLATED_FOLDERS ":-ts").split(u':');
        for (const QString &name : m_tables.entryList()) {
            QVERIFY(QFile::copy(m_tables.filePath(name), m_updated.filePath(name)));
            arguments << m_updated.filePath(name);
        }
        QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE), arguments), 0);
    }

    void table_isCompleteAndFits_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &name : m_tables.entryList())
            QTest::newRow(qPrintable(name)) << name.section(u'_', 1).chopped(3);
    }

    void table_isCompleteAndFits()
    {
        QFETCH(QString, language);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        QStringList faults;
        const QStringList inSources = sources(m_updated.filePath(name), faults);
        QVERIFY(inSources.size() > 100);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        QCOMPARE(sources(m_tables.filePath(name), faults), inSources);
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
        const LocalizedText known{ "Alert.Yes", "" };
        QCOMPARE(localized(known, "Yes"), u"Yes"_s);
        qputenv("LC_ALL", "ru_RU.UTF-8");
        qputenv("LANGUAGE", "ru");
        Translation::install(m_bundle);
        QCOMPARE(localized(known, "Yes"), u"Да"_s);
        QCOMPARE(localized({ "Other.key", "" }, "Nö"), u"Nö"_s);
        QCOMPARE(localized({ "%dm – %ds", "" }), u"%dm – %ds"_s);
        QCOMPARE(
            DurationInfo(90061).toString().replace(QChar::Nbsp, u' '), u"1 д 25 ч 1 мин 1 с"_s);
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
