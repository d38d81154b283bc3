// SPDX-License-Identifier: MIT
#pragma once

/// Begins to read which fonts there are, which takes as long as to reach the display. To be called
/// before the application is created. Thread: main; returns at once.
void readFontsAhead();
