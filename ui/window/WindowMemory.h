// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QMenu;
class QAction;
class QWidget;

/// What the window remembers from one start to the next: its place, and the entry of the format
/// menu that was used last, which is the menu's default one.
class WindowMemory {
public:
    WindowMemory(QWidget &window, QMenu &formatMenu);
    ~WindowMemory();
    Q_DISABLE_COPY_MOVE(WindowMemory)

    void entryWasUsed(QAction *entry);

private:
    QWidget &m_window;
    QMenu &m_formatMenu;
};
