// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The percentage on the program's icon in the task bar, where the desktop shows one.
class LauncherProgress {
public:
    LauncherProgress() = default;
    ~LauncherProgress() { clear(); }
    Q_DISABLE_COPY_MOVE(LauncherProgress)

    void show(int percent) { update(percent, false); }
    /// Takes the percentage away and asks for attention until clear().
    void finish() { update(hidden, true); }
    void clear() { update(hidden, false); }

private:
    void update(int percent, bool urgent);

    static constexpr int hidden = -1;
    int m_percent = hidden;
    bool m_urgent = false;
};
