// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// How a run of the program ended.
struct Finished {
    int exitCode = -1;
    QString out;
    QString err;
    /// Lines of standard output, each an object.
    [[nodiscard]] QList<QJsonObject> events() const;
};

/// Runs the real program as a child process in a folder of its own. The program is a copy in the
/// test's bundle, so a tool that a test exchanges there is the one that it uses.
class Command {
public:
    Command();

    [[nodiscard]] static QString program();
    /// A path in the folder.
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Names and sizes of all that is in the folder and below, links not followed.
    [[nodiscard]] QStringList listing() const;
    [[nodiscard]] QByteArray contents(const QString &name) const;
    void write(const QString &name, const QByteArray &bytes) const;

    /// Further runs are those of a user whom permissions bind. False where that can't be had.
    [[nodiscard]] bool dropPrivileges();
    [[nodiscard]] Finished run(const QStringList &arguments, const QByteArray &input = {}) const;
    /// Starts and does not wait.
    [[nodiscard]] std::unique_ptr<QProcess> start(const QStringList &arguments) const;
    [[nodiscard]] static Finished wait(QProcess &process);

private:
    QTemporaryDir m_folder;
    bool m_unprivileged = false;
};
