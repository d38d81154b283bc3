// SPDX-License-Identifier: MIT
#include "support/dialogs/Alerts.h"

#include "support/Localized.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace {

// The labels of a message box guess their format, and a file may be named like mark-up.
void showPlainText(const QMessageBox &box)
{
    const auto labels = box.findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextFormat(Qt::PlainText);
}

}

void displayError(const QString &message, const QString &informativeText)
{
    QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    if (!informativeText.isEmpty())
        box.setInformativeText(informativeText);
    showPlainText(box);
    box.exec();
}

bool displayQuestion(const QString &question)
{
    LocalizedText noText = QT_TRANSLATE_NOOP3("Localizable", "Alert.No", "");
    noText.fallback = "No";
    LocalizedText yesText = QT_TRANSLATE_NOOP3("Localizable", "Alert.Yes", "");
    yesText.fallback = "Yes";

    QMessageBox box(
        QMessageBox::Information, {}, {}, QMessageBox::NoButton, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(question);
    QPushButton *no = box.addButton(localized(noText), QMessageBox::NoRole);
    QPushButton *yes = box.addButton(localized(yesText), QMessageBox::YesRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}
