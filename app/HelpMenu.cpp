// SPDX-License-Identifier: MIT
#include "app/HelpMenu.h"

#include "app/SettingsDialog.h"
#include "support/Localized.h"
#include "support/Text.h"
#include "ui/window/AppDelegate.h"
#include "updates/Updater.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QMenu>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QByteArray &output)
{
    QString text = Text::stringValue(output);
    if (text.isEmpty())
        text = QString::fromUtf8(output);
    return text.replace(u'\r', u'\n');
}

QDialog *logWindow(const QString &text, QWidget *parent)
{
    auto *dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(localized(
        QT_TRANSLATE_NOOP3("Localizable", "Conversion Log", "title of the log's window")));
    auto *log = new QPlainTextEdit(text, dialog);
    log->setReadOnly(true);
    log->setLineWrapMode(QPlainTextEdit::NoWrap);
    log->setLayoutDirection(Qt::LeftToRight);
    log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    log->setAccessibleName(dialog->windowTitle());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(log);
    layout->addWidget(buttons);
    dialog->resize(720, 480);
    return dialog;
}

}

HelpMenu::HelpMenu(AppDelegate &delegate, Updater &updater)
    : m_delegate(delegate)
{
    auto *menu = delegate.window()->findChild<QMenu *>(u"helpMenu"_s);
    auto *showLog = new QAction(localized(QT_TRANSLATE_NOOP3("Localizable", "Show Conversion Log",
                                    "menu command, opens a window")),
        this);
    connect(showLog, &QAction::triggered, this, &HelpMenu::showConversionLog);
    connect(menu, &QMenu::aboutToShow, showLog,
        [this, showLog] { showLog->setEnabled(!m_delegate.lastToolOutput().isEmpty()); });
    auto *check = new QAction(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Check for Updates…", "menu command")), this);
    check->setMenuRole(QAction::ApplicationSpecificRole);
    connect(check, &QAction::triggered, &updater, &Updater::checkForUpdates);
    menu->insertActions(menu->actions().value(0), { showLog, check });

    auto *settings = delegate.window()
                         ->findChild<QMenu *>(u"editMenu"_s)
                         ->addAction(localized(
                             QT_TRANSLATE_NOOP3("Localizable", "Settings…", "menu command")));
    settings->setMenuRole(QAction::PreferencesRole);
    settings->setShortcut(Qt::CTRL | Qt::Key_Comma);
    connect(settings, &QAction::triggered, this, [window = delegate.window()] {
        auto *dialog = new SettingsDialog(window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
}

void HelpMenu::showConversionLog()
{
    if (m_log)
        m_log->close();
    m_log = logWindow(textOf(m_delegate.lastToolOutput()), m_delegate.window());
    m_log->show();
}
