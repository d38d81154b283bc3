// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

/// Keeps the machine from falling asleep between start() and stop(), where the desktop allows it.
/// It is released at destruction too, and by the system when the process dies.
/// Thread: main; no call waits for the desktop.
/// Errors: a desktop that refuses or has no such service changes nothing.
class KeepAwake {
public:
    KeepAwake();
    ~KeepAwake();
    Q_DISABLE_COPY_MOVE(KeepAwake)

    /// The reason is shown to users who ask what keeps their machine awake. A second start replaces
    /// the first.
    void start(const QString &reason);
    void stop();

private:
    struct Hold;
    std::shared_ptr<Hold> m_hold;
};
