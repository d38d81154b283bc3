// SPDX-License-Identifier: MIT
#include "app/SettingsDialog.h"

#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Localized.h"
#include "support/Preferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
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

QComboBox *addLanguageBox(QFormLayout *layout)
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
    layout->addRow(localized(QT_TRANSLATE_NOOP3("Localizable", "Language:", "settings")), box);
    return box;
}

}

void openSettings(QWidget *window)
{
    auto *dialog = new QDialog(window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Settings", "title of the settings' window")));
    auto *layout = new QFormLayout(dialog);
    const bool noTracking = Configuration::doNotTrack();
    const auto *usage = addSwitch(layout,
        QT_TRANSLATE_NOOP3("Localizable", "Send anonymous usage events", "settings"),
        Preferences::sendsUsage(), noTracking ? QString() : Configuration::collectorUrl());
    const auto *updates = addSwitch(layout,
        QT_TRANSLATE_NOOP3("Localizable", "Look for updates once a day", "settings"),
        Preferences::checksForUpdates(), Configuration::feedUrl());
    const auto *language = addLanguageBox(layout);
    layout->addRow(QString(),
        new QLabel(localized(
            QT_TRANSLATE_NOOP3("Localizable", "From the next start on.", "settings, language"))));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    layout->addRow(buttons);
    QObject::connect(dialog, &QDialog::accepted, dialog, [usage, updates, language] {
        if (usage->isEnabled())
            Preferences::setSendsUsage(usage->isChecked());
        if (updates->isEnabled())
            Preferences::setChecksForUpdates(updates->isChecked());
        Preferences::setLanguage(language->currentData().toString());
    });
    dialog->open();
}
