// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/CommandLine.h"

/// Texts of --help.
namespace Help {

[[nodiscard]] QString general();
[[nodiscard]] QString of(Verb verb);

}
