// SPDX-License-Identifier: MIT
#include "app/HelpMenu.h"

#include "app/SettingsDialog.h"
#include "support/Localized.h"
#include "support/dialogs/Alerts.h"
#include "ui/window/AppDelegate.h"
#include "updates/Updater.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

void addHelpMenu(AppDelegate &delegate, Updater &updater)
{
    QMainWindow *window = delegate.window();
    auto *menu = window->findChild<QMenu *>(u"helpMenu"_s);
    QAction *about = menu->actions().constFirst();
    auto *log = menu->addAction(localized(QT_TRANSLATE_NOOP3("Localizable", "Show Conversion Log",
                                    "menu command, opens a window")),
        menu, [&delegate] { showLog(delegate.window(), delegate.lastToolOutput()); });
    QObject::connect(menu, &QMenu::aboutToShow, log,
        [&delegate, log] { log->setEnabled(!delegate.lastToolOutput().isEmpty()); });
    menu->addAction(
            localized(QT_TRANSLATE_NOOP3("Localizable", "Check for Updates…", "menu command")),
            &updater, &Updater::checkForUpdates)
        ->setMenuRole(QAction::ApplicationSpecificRole);
    menu->addAction(about);

    window->findChild<QMenu *>(u"editMenu"_s)
        ->addAction(localized(QT_TRANSLATE_NOOP3("Localizable", "Settings…", "menu command")),
            Qt::CTRL | Qt::Key_Comma, window, [window] { openSettings(window); })
        ->setMenuRole(QAction::PreferencesRole);
}
