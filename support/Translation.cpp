// SPDX-License-Identifier: MIT
#include "support/Translation.h"

#include "support/Preferences.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace Translation {

QString language(const QStringList &wanted, const QStringList &localizations)
{
    for (const QString &each : wanted) {
        const QLocale locale(each);
        if (localizations.contains(each))
            return each;
        for (const QString &localization : localizations) {
            const QLocale other(localization);
            if (locale.language() == other.language() && locale.script() == other.script())
                return localization;
        }
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            break;
    }
    return u"en"_s;
}

QString install(const Bundle &bundle)
{
    const QString set = Preferences::language();
    const QStringList wanted = set.isEmpty() ? QLocale::system().uiLanguages() : QStringList(set);
    QString chosen = language(wanted, bundle.localizations());
    const auto load = [](const auto &...file) {
        auto *translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(file...))
            QCoreApplication::installTranslator(translator);
    };
    load(QLocale(chosen), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    load(bundle.localizationPath(chosen) + u"/video-converter.qm"_s);
    return chosen;
}

}
