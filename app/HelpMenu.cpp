// SPDX-License-Identifier: MIT
#include "app/HelpMenu.h"

#include "app/SettingsDialog.h"
#include "support/Localized.h"
#include "support/dialogs/Alerts.h"
#include "ui/window/AppDelegate.h"
#include "updates/Updater.h"

#include <QAction>
#include <QDialog>
#include <QFontDatabase>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

QDialog *showConversionLog(AppDelegate &delegate)
{
    const QString title = localized(
        QT_TRANSLATE_NOOP3("Localizable", "Conversion Log", "title of the log's window"));
    QDialog *dialog = makeLogWindow(delegate.window(), title, delegate.lastToolOutput());
    auto *log = dialog->findChild<QPlainTextEdit *>();
    log->setLineWrapMode(QPlainTextEdit::NoWrap);
    log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    log->setAccessibleName(title);
    dialog->resize(720, 480);
    dialog->show();
    return dialog;
}

}

void addHelpMenu(AppDelegate &delegate, Updater &updater)
{
    QMainWindow *window = delegate.window();
    auto *menu = window->findChild<QMenu *>(u"helpMenu"_s);
    QAction *about = menu->actions().constFirst();
    auto *showLog = menu->addAction(localized(QT_TRANSLATE_NOOP3("Localizable",
                                        "Show Conversion Log", "menu command, opens a window")),
        menu, [&delegate, log = QPointer<QDialog>()]() mutable {
            if (log)
                log->close();
            log = showConversionLog(delegate);
        });
    QObject::connect(menu, &QMenu::aboutToShow, showLog,
        [&delegate, showLog] { showLog->setEnabled(!delegate.lastToolOutput().isEmpty()); });
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
