// SPDX-License-Identifier: MIT
#include "app/SettingsDialog.h"

#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Localized.h"
#include "support/Preferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

/// A switch for what only builds with such an address do.
QCheckBox *addSwitch(
    QFormLayout *layout, const LocalizedText &text, bool isOn, const QString &address)
{
    auto *box = new QCheckBox(localized(text));
    box->setChecked(isOn && !address.isEmpty());
    box->setDisabled(address.isEmpty());
    if (address.isEmpty())
        box->setToolTip(localized(
            QT_TRANSLATE_NOOP3("Localizable", "This build contacts nobody.", "settings")));
    layout->addRow(box);
    return box;
}

QComboBox *languageBox()
{
    auto *box = new QComboBox;
    box->addItem(localized(QT_TRANSLATE_NOOP3(
                     "Localizable", "As on the desktop", "settings, choice of the language")),
        QString());
    QStringList languages = Bundle::main().localizations();
    if (!languages.contains(u"en"_s))
        languages.prepend(u"en"_s);
    for (const QString &language : languages)
        box->addItem(QLocale(language).nativeLanguageName(), language);
    box->setCurrentIndex(std::max(0, box->findData(Preferences::language())));
    return box;
}

}

SettingsDialog::SettingsDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Settings", "title of the settings' window")));
    auto *layout = new QFormLayout(this);
    m_usage = addSwitch(layout,
        QT_TRANSLATE_NOOP3("Localizable", "Send anonymous usage events", "settings"),
        Preferences::sendsUsage() && !Configuration::doNotTrack(),
        Configuration::doNotTrack() ? QString() : Configuration::collectorUrl());
    m_updates = addSwitch(layout,
        QT_TRANSLATE_NOOP3("Localizable", "Look for updates once a day", "settings"),
        Preferences::checksForUpdates(), Configuration::feedUrl());
    m_language = languageBox();
    layout->addRow(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Language:", "settings")), m_language);
    layout->addRow(QString(),
        new QLabel(localized(
            QT_TRANSLATE_NOOP3("Localizable", "From the next start on.", "settings, language"))));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addRow(buttons);
}

void SettingsDialog::accept()
{
    if (m_usage->isEnabled())
        Preferences::setSendsUsage(m_usage->isChecked());
    if (m_updates->isEnabled())
        Preferences::setChecksForUpdates(m_updates->isChecked());
    Preferences::setLanguage(m_language->currentData().toString());
    QDialog::accept();
}
