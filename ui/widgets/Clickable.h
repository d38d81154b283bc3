// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QKeyEvent;
class QPainter;
class QWidget;

/// What image views and text fields that work as buttons have in common.
/// Thread: main.
namespace Clickable {

/// Makes such a view reachable by the Tab key.
void enable(QWidget *view);
/// The key that presses a button.
[[nodiscard]] bool isActivation(const QKeyEvent &event);
/// The view looks different afterwards: the pointer or the keyboard focus came or went, or colours
/// changed.
[[nodiscard]] bool changesLook(const QEvent &event);
/// A ring around the view that has the focus, once the user moves it by keyboard.
void paintFocus(QPainter &painter, const QWidget &view);
/// Tells screen readers that such views are buttons and lets these press them, and that a spinner
/// is one. Called once.
void installAccessibility();

}
