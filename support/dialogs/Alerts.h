// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPlainTextEdit;
class QWidget;

/// Alerts that stop the program until they are answered, in plain text.

void displayError(const QString &message, const QString &informativeText = {});
/// True exactly when "Yes" was pressed; Return, Escape and closing the alert answer no.
[[nodiscard]] bool displayQuestion(const QString &question);

/// Makes a window with what a tool printed, which deletes itself when it is closed. Returns the
/// text in it.
[[nodiscard]] QPlainTextEdit *makeLogWindow(
    QWidget *parent, const QString &title, const QByteArray &output);
