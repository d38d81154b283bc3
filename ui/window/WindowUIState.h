// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace Ui {
class MainWindow;
}

/// Visual states of the main window.
enum class WindowUIState {
    /// Nothing is loaded; the window invites the user to bring a video.
    InitialState,
    /// A file was accepted and is being examined.
    WaitingForCover,
    /// The file was examined; an output can be chosen.
    CoverIsSet,
    /// A conversion runs.
    Converting,
    /// The last conversion finished.
    ConversionIsDone,
};

/// Makes the window look as a state wants it, whatever it looked like before.
/// Thread: main.
void applyWindowUIState(Ui::MainWindow &outlets, WindowUIState state);

/// The control that the user most likely wants next.
[[nodiscard]] QWidget *primaryControl(const Ui::MainWindow &outlets, WindowUIState state);
/// The outlet whose text or name tells the state.
[[nodiscard]] QWidget *spokenOutlet(const Ui::MainWindow &outlets, WindowUIState state);
