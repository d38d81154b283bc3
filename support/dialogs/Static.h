// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDialog;

/// Values of the whole process, each made once, by its first reader.
class Static {
public:
    Static() = delete;

    /// Reserved for one-time initialisation.
    static inline int onceToken = 0;
    /// The one about box; it goes with the application object. Thread: main.
    [[nodiscard]] static QDialog &aboutWindow();
    /// The vendor's web site in the user's language; empty when there is none. Thread: any.
    [[nodiscard]] static const QString &applicationURL();
};
