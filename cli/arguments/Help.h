// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/Options.h"

#include <QString>

namespace Help {

[[nodiscard]] QString general();
[[nodiscard]] QString of(Verb verb);

}
