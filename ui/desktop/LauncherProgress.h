// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The percentage on the program's icon in the task bar. The entry is found by
/// QGuiApplication::desktopFileName(). Thread: main; no call waits for the desktop. Errors: a
/// desktop without such a display changes nothing.
class LauncherProgress {
public:
    LauncherProgress() = default;
    ~LauncherProgress() { clear(); }
    Q_DISABLE_COPY_MOVE(LauncherProgress)

    /// Shows a fraction of 0 to 1; what lies outside is bounded. Tells the desktop whole
    /// percentages only.
    void show(double fraction);
    /// Takes the percentage away and asks for attention until clear().
    void finish();
    /// Takes the percentage and the call for attention away.
    void clear();

private:
    void update(int percent, bool urgent);

    static constexpr int hidden = -1;
    int m_percent = hidden;
    bool m_urgent = false;
};
