// SPDX-License-Identifier: MIT
#pragma once

/// The platform's own updater in place of ours: schedule, dialogs, signatures and installation are
/// its own. Thread: the main one.
namespace PlatformUpdater {

void start();
void checkForUpdates();

}
