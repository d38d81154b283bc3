// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/CommandLine.h"

namespace Help {

[[nodiscard]] QString general();
[[nodiscard]] QString of(Verb verb);

}
