// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Beyond the tool itself and the system's libraries and fonts.
struct ToolAccess {
    /// Files, or folders with all that they hold.
    QStringList readable;
    /// Files that exist.
    QStringList writable;
};

/// Confines a tool, because a video is hostile input to its decoders: it reads and writes only what
/// it was granted, opens no socket, starts and signals no process, gains no privileges, leaves no
/// core dump, and has limits that no honest conversion meets. A script may start processes. Without
/// the kernel's help files are open to it. Thread: one; enter() runs between fork and exec.
class Sandbox {
public:
    Sandbox(const QString &toolPath, const ToolAccess &access);
    ~Sandbox();
    Q_DISABLE_COPY_MOVE(Sandbox)

    [[nodiscard]] bool isConfining() const { return m_ruleset >= 0; }
    /// Confines the calling process. Ends it when that fails although the kernel can.
    void enter() const;

private:
    void refuseCalls() const;

    int m_ruleset = -1;
    bool m_isScript = false;
    bool m_scopesSignals = false;
    unsigned long m_mostProcesses = 0;
};
