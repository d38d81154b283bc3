// SPDX-License-Identifier: MIT
#pragma once

#include "support/Bundle.h"

/// Makes the program speak the user's language. Thread: main, before the first text.
namespace Translation {

/// The first of the user's languages that the bundle has, else "en". Tongue and script must agree:
/// "pt-PT" is served by "pt-BR", "zh-TW" is not by "zh-Hans".
[[nodiscard]] QString language(const QStringList &wanted, const QStringList &localizations);
/// Loads the language of the settings, else the desktop's, for all texts; tells which it is.
QString install(const Bundle &bundle);

}
