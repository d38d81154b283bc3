// SPDX-License-Identifier: MIT
#include "updates/UpdaterDelegate.h"

#include "support/Configuration.h"

QString UpdaterDelegate::feedURLStringForUpdater(const Updater *) const
{
    return Configuration::feedUrl();
}
