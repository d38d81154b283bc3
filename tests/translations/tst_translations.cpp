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
QStringList directives(const QString &format)
{
    static const QRegularExpression directive(uR"(%(?:(\d+)\$)?([d@%]))"_s);
    QStringList found;
    int next = 0;
    for (const QRegularExpressionMatch &match : directive.globalMatch(format)) {
        const bool isNext = !match.hasCaptured(1) && match.captured(2) != u"%"_s;
        found << (isNext ? QString::number(++next) : match.captured(1)) + match.captured(2);
    }
    found.sort();
    return found;
}

/// The source texts of a table. Those without a fitting translation are added to `faults`.
QStringList sources(const QString &path, QStringList &faults)
{
    static const QRegularExpression message(
        u"<source>(.*?)</source>.*?<translation(.*?)</translation>"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QString table = QString::fromUtf8(file.readAll());
    QStringList texts;
    for (const QRegularExpressionMatch &match : message.globalMatch(table)) {
        const QString source = match.captured(1);
        const QString translation = match.captured(2);
        texts << source;
        // An unfinished one has an attribute that says so.
        if (!translation.startsWith(u'>') || translation.sliced(1).trimmed().isEmpty()
            || directives(translation) != directives(source))
            faults << source + u" ->"_s + translation;
    }
    texts.sort();
    return texts;
}

}

class TestTranslations : public QObject {
    Q_OBJECT

private:
    const Bundle m_bundle{ QStringLiteral(BUNDLE) };

private Q_SLOTS:
    void tables_areCompleteAndFit()
    {
        const QDir tables(QStringLiteral(TABLES), u"video-converter_*.ts"_s);
        const QTemporaryDir updated;
        QStringList arguments
            = QStringLiteral("-silent:-no-obsolete:" TRANSLATED_FOLDERS ":-ts").split(u':');
        for (const QString &name : tables.entryList()) {
            QVERIFY(QFile::copy(tables.filePath(name), updated.filePath(name)));
            arguments << updated.filePath(name);
        }
        QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE), arguments), 0);

        // English needs none.
        QCOMPARE(tables.count() + 1, m_bundle.localizations().size());
        QStringList faults;
        for (const QString &name : tables.entryList()) {
            const QStringList inSources = sources(updated.filePath(name), faults);
            QVERIFY2(faults.isEmpty(), qPrintable(name + u'\n' + faults.join(u'\n')));
            QCOMPARE(sources(tables.filePath(name), faults), inSources);
            const QString folder = m_bundle.localizationPath(name.section(u'_', 1).chopped(3));
            QVERIFY(QTranslator().load(folder + u"/video-converter.qm"_s));
        }
    }

    void language_isTheFirstThatTheBundleHas()
    {
        const std::pair<QString, QString> choices[]{ { u"pt-PT pt-Latn-PT"_s, u"pt-BR"_s },
            { u"zh-CN zh-Hans-CN en"_s, u"zh-Hans"_s }, { u"zh-TW zh-Hant-TW"_s, u"en"_s },
            { u"it-IT it de-DE"_s, u"de"_s }, { u"en-GB en-Latn-GB fr"_s, u"en"_s },
            { u"C fr"_s, u"en"_s } };
        for (const auto &[wanted, chosen] : choices)
            QCOMPARE(Translation::language(wanted.split(u' '), m_bundle.localizations()), chosen);
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
