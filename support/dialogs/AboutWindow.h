// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

/// The about box. Open, it does not keep the program from ending with its main window.
class AboutWindow : public QDialog {
    Q_OBJECT

public:
    AboutWindow();

    void showWindow();
};
