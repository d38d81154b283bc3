// SPDX-License-Identifier: MIT
#pragma once

class AppDelegate;
class Updater;

/// Adds the commands beyond the window's own: updates, the conversion log and the settings.
void addHelpMenu(AppDelegate &delegate, Updater &updater);
