// SPDX-License-Identifier: MIT
#include "support/dialogs/Alerts.h"

#include "support/Localized.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// The window in front, unless the program may close that one meanwhile, as that of a download.
QWidget *parentWindow()
{
    QWidget *window = QApplication::activeWindow();
    while (window && !window->isModal() && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

// Lets a name without spaces go on in the next line instead of leaving the alert.
QString breakable(const QString &text)
{
    static const QRegularExpression longRun(
        uR"(((?:(?!\s)\X){40})(?=\S))"_s, QRegularExpression::UseUnicodePropertiesOption);
    return QString(text).replace(longRun, u"\\1\u200b"_s);
}

}

void displayError(const QString &message, const QString &informativeText)
{
    QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Ok, parentWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(message));
    if (!informativeText.isEmpty())
        box.setInformativeText(breakable(informativeText));
    // The labels guess their format, and a file may be named like mark-up.
    for (QLabel *label : box.findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    box.exec();
}

bool displayQuestion(const QString &question)
{
    QMessageBox box(QMessageBox::Information, {}, {}, QMessageBox::NoButton, parentWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(question));
    QPushButton *no = box.addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Alert.No", ""), "No"), QMessageBox::NoRole);
    QPushButton *yes = box.addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Alert.Yes", ""), "Yes"), QMessageBox::YesRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

void showLog(QWidget *window, const QByteArray &output)
{
    const QString title = localized(
        QT_TRANSLATE_NOOP3("Localizable", "Conversion Log", "title of the log's window"));
    const QString name = u"log"_s;
    for (QDialog *former : window->findChildren<QDialog *>(name))
        former->close();
    auto *dialog = new QDialog(window);
    dialog->setObjectName(name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    auto *text = new QPlainTextEdit(QString::fromUtf8(output).replace(u'\r', u'\n'));
    text->setReadOnly(true);
    text->setLayoutDirection(Qt::LeftToRight);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setAccessibleName(title);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    dialog->resize(720, 480);
    dialog->show();
}
