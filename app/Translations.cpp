// SPDX-License-Identifier: MIT
#include "Translations.h"

#include "support/Bundle.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// The bundle's localisation that suits a language best: "pt-BR" is served by "pt-BR" or "pt".
QString localization(const QString &language, const QStringList &available)
{
    for (QString name = language;; name.truncate(name.lastIndexOf(u'-'))) {
        if (available.contains(name))
            return name;
        if (!name.contains(u'-'))
            return {};
    }
}

void install(QCoreApplication &application, const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(&application);
    if (translator->load(file, folder))
        application.installTranslator(translator);
    else
        delete translator;
}

}

void installTranslations(QCoreApplication &application)
{
    const Bundle &bundle = Bundle::main();
    const QStringList available = bundle.localizations();
    for (const QString &language : QLocale().uiLanguages()) {
        if (QLocale(language).language() == QLocale::English)
            return;
        const QString name = localization(language, available);
        if (name.isEmpty())
            continue;
        QString qtName = name;
        install(application, u"qtbase_"_s + qtName.replace(u'-', u'_'),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        install(application, u"video-converter.qm"_s, bundle.localizationPath(name));
        return;
    }
}
