// SPDX-License-Identifier: MIT
#pragma once

#include "support/Bundle.h"

/// Makes the program speak the user's language, as far as the bundle is translated into it.
/// Thread: main, before the first text is looked up.
namespace Translation {

/// The first of the user's languages that the bundle has, or "en" where English comes first. A
/// language counts when tongue and script agree: "pt-PT" is served by "pt-BR", "zh-TW" is not by
/// "zh-Hans".
[[nodiscard]] QString language(const QStringList &wanted, const QStringList &localizations);
/// Loads the desktop's language for our texts and for those of the toolkit; tells which it is.
QString install(const Bundle &bundle);

}
