// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>

class QIODevice;
class QNetworkAccessManager;
class QNetworkReply;
class QUrl;

struct FetchLimits {
    qint64 bytes;
    std::chrono::milliseconds time;
};

/// Reads a web address into a device, within limits and five redirections, never to a less safe
/// scheme. Errors: anything but a complete success ends with finished(false). Thread: its own.
class Fetch : public QObject {
    Q_OBJECT
public:
    /// The device is open and outlives this object.
    Fetch(QNetworkAccessManager &network, const QUrl &url, QIODevice &target, FetchLimits limits,
        QObject *parent = nullptr);
    ~Fetch() override;
    Q_DISABLE_COPY_MOVE(Fetch)

Q_SIGNALS:
    void progressed(qint64 received, qint64 total);
    /// Once, never from within the constructor.
    void finished(bool complete);

private:
    void takeBytes();
    void end();

    QNetworkReply *m_reply;
    QIODevice &m_target;
    qint64 m_limit;
    qint64 m_received = 0;
    bool m_fits = true;
};
