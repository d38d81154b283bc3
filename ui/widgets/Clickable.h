// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QPainter;
class QWidget;

namespace Clickable {

/// Makes such a view reachable by the Tab key.
void enable(QWidget *view);
/// The left mouse button, or a key that presses buttons.
[[nodiscard]] bool isPress(const QEvent &event);
/// The pointer or the keyboard focus came or went, or colours changed.
[[nodiscard]] bool changesLook(const QEvent &event);
/// A ring around the view that has the focus, once the user moves it by keyboard.
void paintFocus(QPainter &painter, const QWidget &view);
/// Tells screen readers that such views are buttons, and that a spinner is one. Called once.
void installAccessibility();

}
