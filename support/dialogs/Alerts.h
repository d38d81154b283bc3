// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDialog;
class QWidget;

/// Alerts that stop the program until they are answered, in plain text.

void displayError(const QString &message, const QString &informativeText = {});
/// True exactly when "Yes" was pressed; Return, Escape and closing the alert answer no.
[[nodiscard]] bool displayQuestion(const QString &question);

/// With what a tool printed, in a QPlainTextEdit. Not shown yet; deletes itself when it is closed.
[[nodiscard]] QDialog *makeLogWindow(
    QWidget *parent, const QString &title, const QByteArray &output);
