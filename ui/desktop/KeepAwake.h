// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

/// Keeps the machine awake between start() and stop(), where the desktop allows it.
class KeepAwake {
public:
    /// The reason is shown to users who ask. A second start replaces the first.
    void start(const QString &reason);
    void stop() { m_hold.reset(); }

private:
    struct Hold;
    std::shared_ptr<Hold> m_hold;
};
