// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QStringList>

class QLocalSocket;

/// Later starts, by one user on one display, hand their files to the program that runs.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    SingleInstance();

    /// True when a running instance took the files. Else this one takes those of later starts.
    [[nodiscard]] bool handOver(const QStringList &absolutePaths);

Q_SIGNALS:
    /// Another start asked for these files, absolute paths; an empty list asks only for the window.
    void filesReceived(const QStringList &absolutePaths);

private:
    void accept();
    void read(QLocalSocket *peer);

    QLocalServer m_server;
};
