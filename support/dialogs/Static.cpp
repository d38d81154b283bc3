// SPDX-License-Identifier: MIT
#include "support/dialogs/Static.h"

#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/Localized.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QString programName()
{
    return Bundle::main()
        .infoString(u"CFBundleName"_s)
        .value_or(QGuiApplication::applicationDisplayName());
}

/// Only Russian has a site of its own. Prints a line for a language that the bundle has.
QString siteAddress()
{
    QString root = Configuration::siteUrl();
    const QString code = languageCode().value_or(QString());
    const QString language = code.toLower();
    const qsizetype position = Bundle::main().localizations().indexOf(language);
    if (position < 0)
        return root;
    Console::print(code + u' ' + QString::number(position));
    return language == u"ru" && !root.isEmpty() ? root + "ru/"_L1 : root;
}

/// Open, it does not keep the program from ending with its main window.
QDialog *makeAboutBox()
{
    auto *box = new QMessageBox;
    box->setAttribute(Qt::WA_QuitOnClose, false);
    box->setModal(false);
    box->setWindowTitle(formatted(
        QT_TRANSLATE_NOOP3("Localizable", "About %@", "about box, with the program's name"),
        { programName() }));
    box->setIconPixmap(QApplication::windowIcon().pixmap(96));
    box->setText(programName());
    const auto bundled = Bundle::main().infoString(u"CFBundleShortVersionString"_s);
    box->setInformativeText(formatted(
        QT_TRANSLATE_NOOP3("Localizable", "Version %@", "about box, with the version number"),
        { bundled.value_or(Configuration::version()) }));
    for (QLabel *label : box->findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    box->addButton(QMessageBox::Close);
    if (Static::applicationURL().isEmpty())
        return box;
    const auto *website = box->addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Visit Web Site", "button of the about box")),
        QMessageBox::ActionRole);
    QObject::connect(website, &QPushButton::clicked, box, [] {
        if (const QUrl site(Static::applicationURL()); site.isValid())
            QDesktopServices::openUrl(site);
    });
    return box;
}

}

QDialog &Static::aboutWindow()
{
    static QDialog *const window = [] {
        // No widget may outlive the application object.
        qAddPostRoutine([] { delete &aboutWindow(); });
        return makeAboutBox();
    }();
    return *window;
}

const QString &Static::applicationURL()
{
    static const QString url = siteAddress();
    return url;
}
