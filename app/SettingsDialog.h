// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Asks for what the user may set, and writes it when that is accepted.
void openSettings(QWidget *window);
