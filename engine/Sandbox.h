// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Beyond the tool itself and the system's libraries and fonts.
struct ToolAccess {
    QStringList readableFiles;
    QStringList writableFolders;
};

/// Confines a tool, because a video is hostile input to its decoders: it reads and writes only what
/// it was granted, opens no socket, gains no privileges and leaves no core dump. Without the
/// kernel's help only the last two hold. Thread: one; enter() runs between fork and exec.
class Sandbox {
public:
    Sandbox(const QString &toolPath, const ToolAccess &access);
    ~Sandbox();
    Q_DISABLE_COPY_MOVE(Sandbox)

    [[nodiscard]] bool isConfining() const { return m_ruleset >= 0; }
    /// Confines the calling process. Ends it when that fails although the kernel can.
    void enter() const;

private:
    int m_ruleset = -1;
};
