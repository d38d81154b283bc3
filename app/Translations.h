// SPDX-License-Identifier: MIT
#pragma once

class QCoreApplication;

/// Loads the texts in the desktop's language: the bundle's own and those of the standard dialogs.
/// Without a table in any of the user's languages the texts stay English. Thread: main, before the
/// first text is shown.
void installTranslations(QCoreApplication &application);
