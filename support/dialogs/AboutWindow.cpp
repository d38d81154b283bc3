// SPDX-License-Identifier: MIT
#include "support/dialogs/AboutWindow.h"

#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Format.h"
#include "support/Localized.h"
#include "support/dialogs/Static.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 96;
constexpr int narrowest = 240;

QString programName()
{
    return Bundle::main()
        .infoString(u"CFBundleName"_s)
        .value_or(QGuiApplication::applicationDisplayName());
}

QString versionText()
{
    const QString version = Bundle::main()
                                .infoString(u"CFBundleShortVersionString"_s)
                                .value_or(Configuration::version());
    return formatted(
        QT_TRANSLATE_NOOP3("Localizable", "Version %@", "about box, with the version number"),
        { version });
}

QLabel *addLabel(QVBoxLayout *layout, const QString &objectName, const QString &text = {})
{
    auto *label = new QLabel(text);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout->addWidget(label);
    return label;
}

}

AboutWindow::AboutWindow()
{
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(formatted(
        QT_TRANSLATE_NOOP3("Localizable", "About %@", "about box, with the program's name"),
        { programName() }));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addStrut(narrowest);

    auto *icon = addLabel(layout, u"icon"_s);
    icon->setPixmap(QApplication::windowIcon().pixmap(iconSize));
    icon->setHidden(QApplication::windowIcon().isNull());

    QLabel *name = addLabel(layout, u"programName"_s, programName());
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    name->setFont(font);

    QLabel *version = addLabel(layout, u"version"_s, versionText());
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_credits = addLabel(layout, u"credits"_s);
    m_credits->hide();

    m_website = new QPushButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Visit Web Site", "button of the about box")));
    m_website->setObjectName(u"website"_s);
    m_website->hide();
    layout->addSpacing(8);
    layout->addWidget(m_website, 0, Qt::AlignCenter);
    connect(m_website, &QPushButton::clicked, this, [this] { m_openWebsite(); });
}

void AboutWindow::setCredits(const QString &credits)
{
    m_credits->setText(credits);
    m_credits->setHidden(credits.isEmpty());
}

void AboutWindow::setOpenWebsiteHandler(const std::function<void()> &handler)
{
    m_openWebsite = handler;
    m_website->setVisible(handler && !Static::applicationURL().isEmpty());
}

void AboutWindow::showWindow()
{
    show();
    raise();
    activateWindow();
}
