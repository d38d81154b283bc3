// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the package is made with, from the table of options.
namespace Generated {

/// "man" gives the manual page's section on options, "bash", "zsh" and "fish" that shell's
/// completion; empty for any other name.
[[nodiscard]] QString named(const QString &name);

}
