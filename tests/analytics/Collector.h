// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QTcpServer>

class QTcpSocket;

/// A collection endpoint on the loopback interface that keeps what it is sent.
class Collector : public QTcpServer {
    Q_OBJECT

public:
    struct Request {
        QByteArray head;
        QByteArray body;

        [[nodiscard]] QJsonObject hit() const;
    };

    Collector();
    [[nodiscard]] QString url() const;

    QByteArray answer = "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n";
    QList<Request> requests;

private:
    void read(QTcpSocket *socket, QByteArray &received);
};
