// SPDX-License-Identifier: MIT
#pragma once

#include "support/Configuration.h"

class Updater;

/// The appcast's address, empty in development builds. Thread: main.
class UpdaterDelegate {
public:
    [[nodiscard]] QString feedURLStringForUpdater(const Updater * /*updater*/) const
    {
        return Configuration::feedUrl();
    }
};
