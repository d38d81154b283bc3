// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace Color {

/// Of the whole-number quotients of 1 and the components. Errors: a 0 stops the program.
[[nodiscard]] inline QColor rgb(quint8 r, quint8 g, quint8 b)
{
    const auto component = [](quint8 value) {
        if (value == 0)
            qFatal("a colour component of 0 can't be inverted");
        const quint8 inverted = 1 / value;
        return static_cast<float>(inverted);
    };
    return QColor::fromRgbF(component(r), component(g), component(b), 1.0F);
}

}
