// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QPainter;
class QWidget;

namespace Clickable {

/// Makes such a view reachable by the Tab key.
void enable(QWidget *view);
/// By mouse or key, as a button is. Repaints the view where the event changes its look.
[[nodiscard]] bool isPressed(QWidget &view, const QEvent &event);
/// A ring around the view that has the focus, once the user moves it by keyboard.
void paintFocus(QPainter &painter, const QWidget &view);
/// Tells screen readers what the views of this folder are. Called once.
void installAccessibility();

}
