// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QProcessEnvironment>
#include <QStringList>

/// Lets a tool start before its arguments are known. Loading its hundreds of libraries takes longer
/// than many a run; so it is loaded while the film is still examined, and held back at its first
/// instruction by a library of ours (engine/preload) until the arguments come. Linux only:
/// elsewhere, and where that library is missing, isPossible() is false. Thread: one.
class LateArguments {
public:
    LateArguments();
    ~LateArguments();
    Q_DISABLE_COPY_MOVE(LateArguments)

    [[nodiscard]] bool isPossible() const { return m_toolEnd >= 0; }

    /// What the tool is started with; engine/preload knows it again. Where it is not held back all
    /// the same, it tells its version and ends.
    [[nodiscard]] static QStringList placeholders();
    [[nodiscard]] QProcessEnvironment environment() const;
    /// To be called in the tool's process between fork and exec.
    void enter() const;

    /// Waits a moment for the tool, once it has been started. False when it is held back or has
    /// ended, or has had time enough.
    [[nodiscard]] bool isLoading();
    /// Waits until the tool is loaded. True when it has taken the arguments; false when it was not
    /// held back.
    [[nodiscard]] bool send(const QStringList &arguments);

private:
    void closeToolEnd();
    bool hasNews(qint64 milliseconds);

    QString m_library;
    QDeadlineTimer m_patience{ std::chrono::seconds(10) };
    int m_ourEnd = -1;
    int m_toolEnd = -1;
};
