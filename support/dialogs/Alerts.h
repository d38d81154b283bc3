// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/// Alerts that stop the program until they are answered, in plain text.

void displayError(const QString &message, const QString &informativeText = {});
/// True exactly when "Yes" was pressed; Return, Escape and closing the alert answer no.
[[nodiscard]] bool displayQuestion(const QString &question);

/// Opens a window with what a tool printed, in place of an earlier one.
void showLog(QWidget *window, const QByteArray &output);
