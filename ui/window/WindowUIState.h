// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace Ui {
class MainWindow;
}

enum class WindowUIState {
    InitialState,
    WaitingForCover,
    CoverIsSet,
    Converting,
    ConversionIsDone,
};

/// Links and remarks that have no text at the moment stay hidden.
void applyWindowUIState(const Ui::MainWindow &outlets, WindowUIState state);

[[nodiscard]] QWidget *primaryControl(const Ui::MainWindow &outlets, WindowUIState state);
[[nodiscard]] QWidget *spokenOutlet(const Ui::MainWindow &outlets, WindowUIState state);
