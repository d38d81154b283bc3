// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Alerts that stop the whole program until they are answered. All texts are shown as plain text.
/// Thread: main.

/// A warning with one button.
void displayError(const QString &message, const QString &informativeText = {});
/// True exactly when "Yes" was pressed; Return, Escape and closing the alert answer no.
[[nodiscard]] bool displayQuestion(const QString &question);
