// SPDX-License-Identifier: MIT
#pragma once

#include "LoopbackServer.h"

/// A collection endpoint on the loopback interface.
class Collector : public LoopbackServer {
public:
    Collector() { answers["/collect"] = {}; }

    [[nodiscard]] QString url() const { return address({}); }
};
