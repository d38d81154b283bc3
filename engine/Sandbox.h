// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Files that one run of a tool needs, beyond itself and the system's libraries and fonts.
struct ToolAccess {
    QStringList readableFiles;
    QStringList writableFolders;
};

/// Confines a tool before it starts, because a video is hostile input to its decoders: it reads and
/// writes only what it was granted, opens no socket, gains no privileges and leaves no core dump.
/// Without the kernel's help only the last two hold. Thread: one; enter() runs in the child between
/// fork and exec and does nothing that is unsafe there.
class Sandbox {
public:
    Sandbox(const QString &toolPath, const ToolAccess &access);
    ~Sandbox();
    Q_DISABLE_COPY_MOVE(Sandbox)

    /// The kernel can confine the tool's files.
    [[nodiscard]] bool isConfining() const { return m_ruleset >= 0; }
    /// Confines the calling process. Ends it when that fails although the kernel can.
    void enter() const;

private:
    int m_ruleset = -1;
};
