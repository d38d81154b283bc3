// SPDX-License-Identifier: MIT
#include "crash/dialog/CrashQuestion.h"

#include "support/Localized.h"

#include <QMessageBox>
#include <QPushButton>

SendReport askToSendReport(QWidget *parent, const QString &report)
{
    QMessageBox box(QMessageBox::Question, QString(),
        localized(QT_TRANSLATE_NOOP3("Localizable",
            "Video Converter quit unexpectedly the last time.", "crash question, title")),
        QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(localized(QT_TRANSLATE_NOOP3("Localizable",
        "May a report be sent to its makers? It says where the program stopped, its version and "
        "your system; nothing about your files is in it. “Always Send” also tells them when the "
        "program starts and how it ended.",
        "crash question, text")));
    box.setDetailedText(report);
    const auto *send = box.addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Send", "crash question, button")),
        QMessageBox::AcceptRole);
    const auto *always = box.addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Always Send", "crash question, button")),
        QMessageBox::YesRole);
    QPushButton *no = box.addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Don't Send", "crash question, button")),
        QMessageBox::RejectRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    if (box.clickedButton() == always)
        return SendReport::Always;
    return box.clickedButton() == send ? SendReport::Yes : SendReport::No;
}
