// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QStringList>

class QLocalSocket;

/// Makes later starts of the program, by the same user on the same display, hand their files to the
/// one that runs. Thread: main. Errors: where no private place for the meeting exists or the
/// running one does not answer, each start is on its own.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(QObject *parent = nullptr);

    /// True when a running instance took the files (none: it only shows itself); the caller then
    /// ends. False when the caller goes on; from then on it takes the files of later starts. Waits
    /// at most one second.
    [[nodiscard]] bool handOver(const QStringList &filePaths);

Q_SIGNALS:
    /// Another start asked for these files, absolute paths; an empty list asks only for the window.
    void filesReceived(const QStringList &absolutePaths);

private:
    void accept();
    void read(QLocalSocket *peer);

    QLocalServer m_server;
};
