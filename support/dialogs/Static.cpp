// SPDX-License-Identifier: MIT
#include "support/dialogs/Static.h"

#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/Localized.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString programName()
{
    return Bundle::main()
        .infoString(u"CFBundleName"_s)
        .value_or(QGuiApplication::applicationDisplayName());
}

QLabel *addLabel(QVBoxLayout *layout, const QString &text = {})
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout->addWidget(label);
    return label;
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
    auto *box = new QDialog;
    box->setAttribute(Qt::WA_QuitOnClose, false);
    box->setWindowTitle(formatted(
        QT_TRANSLATE_NOOP3("Localizable", "About %@", "about box, with the program's name"),
        { programName() }));
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addStrut(240);

    auto *icon = addLabel(layout);
    icon->setPixmap(QApplication::windowIcon().pixmap(96));
    icon->setHidden(QApplication::windowIcon().isNull());

    QLabel *name = addLabel(layout, programName());
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    name->setFont(font);

    const auto bundled = Bundle::main().infoString(u"CFBundleShortVersionString"_s);
    QLabel *version = addLabel(layout,
        formatted(
            QT_TRANSLATE_NOOP3("Localizable", "Version %@", "about box, with the version number"),
            { bundled.value_or(Configuration::version()) }));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);

    layout->addSpacing(8);
    if (!Static::applicationURL().isEmpty()) {
        auto *website = new QPushButton(localized(
            QT_TRANSLATE_NOOP3("Localizable", "Visit Web Site", "button of the about box")));
        layout->addWidget(website, 0, Qt::AlignCenter);
        QObject::connect(website, &QPushButton::clicked, box, [] {
            if (const QUrl site(Static::applicationURL()); site.isValid())
                QDesktopServices::openUrl(site);
        });
    }
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
