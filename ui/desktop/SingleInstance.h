// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QStringList>

class QLocalSocket;

/// Later starts of the program, by one user on one display, hand their files to the one that runs.
/// Where that one does not answer, each start is on its own.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    SingleInstance();

    /// True when a running instance took the files; the caller then ends. Else this one takes the
    /// files of later starts. Waits at most one second.
    [[nodiscard]] bool handOver(const QStringList &absolutePaths);

Q_SIGNALS:
    /// Another start asked for these files, absolute paths; an empty list asks only for the window.
    void filesReceived(const QStringList &absolutePaths);

private:
    void accept();
    void read(QLocalSocket *peer);

    QLocalServer m_server;
};
