// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QPainter;
class QWidget;

namespace Clickable {

/// By mouse or key, as a button is.
[[nodiscard]] bool isPressed(const QWidget &view, const QEvent &event);
/// A ring around the view that has the focus, once the user moves it by keyboard.
void paintFocus(QPainter &painter, const QWidget &view);

}
