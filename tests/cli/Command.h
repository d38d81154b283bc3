// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fixtures/Folder.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

#include <functional>
#include <memory>

/// How a run of the program ended.
struct Finished {
    int exitCode = -1;
    QString out;
    QString err;
    /// Exit code and standard error, such as "3: video.mp4: The file is empty.\n".
    [[nodiscard]] QString end() const
    {
        return QString::number(exitCode) + QStringLiteral(": ") + err;
    }
    /// The JSON object that was printed.
    [[nodiscard]] QJsonObject object() const
    {
        return QJsonDocument::fromJson(out.toUtf8()).object();
    }
};

/// Runs the real program as a child process in a folder of its own. The program is a copy in the
/// test's bundle, so a tool that a test exchanges there is the one that it uses.
class Command : public Folder {
public:
    Command();

    [[nodiscard]] static QString program();
    /// Names of all that is in the folder and below, with the sizes of files; links not followed.
    [[nodiscard]] QStringList listing() const;
    /// Runs a script in the folder and gives what it prints.
    QString shell(const QString &script) const;

    /// The arguments are the words of `line`, quoted with " where need be, and `further`.
    [[nodiscard]] Finished run(
        const QString &line, const QStringList &further = {}, const QByteArray &input = {}) const;
    /// Starts and does not wait. `inChild` runs between fork and exec.
    [[nodiscard]] std::unique_ptr<QProcess> start(
        const QString &line, const QStringList &further = {},
        const std::function<void()> &inChild = [] {}) const;
    [[nodiscard]] static Finished wait(QProcess &process);

private:
    /// Program and options that run the words behind them.
    QStringList m_wrapper;
};
