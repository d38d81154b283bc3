// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"
#include "engine/Sandbox.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>

#include <chrono>

enum class Tool { Ffmpeg, Ffprobe };

[[nodiscard]] QString toolPath(Tool tool);
[[nodiscard]] Outcome missingTool(Tool tool);

struct LaunchException {
    QString name;
    QString reason;
};

struct LaunchError {
    QString domain;
    int code = 0;
    QString localizedDescription;
};

/// One run of a tool of the bundle, with standard output and standard error in one stream. It runs
/// in a sandbox and dies with this program, however that ends. Thread: the run's.
class Task {
public:
    /// Name of the exception for a launch path that does not exist or can't be executed.
    static const QString invalidArgument;

    Task();
    virtual ~Task();
    Q_DISABLE_COPY_MOVE(Task)

    void setLaunchPath(const QString &path) { m_launchPath = path; }
    void setArguments(const QStringList &arguments) { m_arguments = arguments; }
    void setAccess(const ToolAccess &access) { m_access = access; }

    virtual void launch();
    /// Launches under a guard. False exactly for the exception named invalidArgument, which becomes
    /// the error. Another LaunchException goes on; any other thrown object counts as success.
    bool tryLaunch(LaunchError *error = nullptr);

    /// True until the exit has been noticed after the last output was read.
    [[nodiscard]] bool isRunning() const;
    /// The next output; waits a moment for it. Empty when the tool is silent or has ended.
    [[nodiscard]] QByteArray availableData();
    /// All output until the tool ends. Ends a tool that floods or is silent for too long.
    [[nodiscard]] QByteArray readDataToEndOfFile();
    /// Ends the tool and waits for its end: SIGTERM, after three seconds SIGKILL. Drops its output.
    void terminate();
    /// Never 0 for a tool that died by a signal.
    [[nodiscard]] int terminationStatus() const;
    void closeFile() { m_process.closeReadChannel(QProcess::StandardOutput); }

    /// Neither prints, nor uses processor time, nor writes.
    [[nodiscard]] bool isSilentForTooLong() const { return m_silence > silenceLimit(); }
    /// Units: seconds a tool may be silent and idle; process-wide, 300 at first.
    static void setSilenceLimit(std::chrono::seconds limit);
    [[nodiscard]] static std::chrono::seconds silenceLimit();
    /// Makes every readDataToEndOfFile() end its tool soon; process-wide, for the program's end.
    static void stopReading();

private:
    [[nodiscard]] QByteArray work() const;
    void addSilence(std::chrono::steady_clock::duration silence);

    QProcess m_process;
    QString m_launchPath;
    QStringList m_arguments;
    ToolAccess m_access;
    std::chrono::steady_clock::duration m_silence{};
    // What the tool had done when it was looked at last, after so much silence.
    QByteArray m_work;
    std::chrono::steady_clock::duration m_lookedAt{};
};
