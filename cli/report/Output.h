// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitCode.h"

#include <QJsonDocument>
#include <QSize>
#include <QString>

/// Standard output and standard error. A reader that has gone interrupts the program. Thread: any.
namespace Output {

void line(const QString &text);
void json(const QJsonDocument &document, QJsonDocument::JsonFormat format);
void raw(const QString &text);
void errorLine(const QString &text);
[[nodiscard]] QString reportedSentence(const Outcome &outcome);
/// Says what went wrong with a file; returns what the program ends with.
ExitCode failure(const QString &file, const Outcome &outcome);

/// Takes what is printed for developers, and drops it until it is to be shown. Called first.
void takeDiagnostics();
void showDiagnostics();
void diagnostics(const QByteArray &bytes);

/// Standard output could not be written, other than because its reader has gone.
[[nodiscard]] bool hasFailed();

/// Columns and rows; not valid when standard output is no terminal that can move its cursor.
[[nodiscard]] QSize terminalSize();

}
