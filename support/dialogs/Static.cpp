// SPDX-License-Identifier: MIT
#include "support/dialogs/Static.h"

#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/Localized.h"
#include "support/dialogs/AboutWindow.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

AboutWindow &Static::aboutWindow()
{
    static AboutWindow *const window = [] {
        // No widget may outlive the application object.
        qAddPostRoutine([] { delete &aboutWindow(); });
        return new AboutWindow;
    }();
    return *window;
}

const QString &Static::applicationURL()
{
    static const QString url
        = siteAddress(Configuration::siteUrl(), languageCode(), Bundle::main().localizations());
    return url;
}

QString Static::siteAddress(const QString &root, const std::optional<QString> &languageCode,
    const QStringList &localizations)
{
    if (!languageCode)
        return root;
    const QString language = languageCode->toLower();
    const qsizetype position = localizations.indexOf(language);
    if (position < 0)
        return root;
    Console::print(*languageCode + u' ' + QString::number(position));
    return language == u"ru" && !root.isEmpty() ? root + "ru/"_L1 : root;
}
