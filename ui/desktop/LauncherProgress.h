// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

/// The percentage on the program's icon in the task bar, where the desktop shows one.
class LauncherProgress {
public:
    LauncherProgress() = default;
    ~LauncherProgress() { show({}); }
    Q_DISABLE_COPY_MOVE(LauncherProgress)

    /// Asks for attention while it is urgent.
    void show(std::optional<int> percent, bool urgent = false);

private:
    std::optional<int> m_percent;
    bool m_urgent = false;
};
