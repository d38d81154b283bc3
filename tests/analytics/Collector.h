// SPDX-License-Identifier: MIT
#pragma once

#include "LoopbackServer.h"

#include <QJsonObject>

/// A collection endpoint on the loopback interface that keeps what it is sent.
class Collector : public LoopbackServer {
public:
    struct Request {
        QByteArray head;
        QByteArray body;

        [[nodiscard]] QJsonObject hit() const;
    };

    [[nodiscard]] QString url() const { return address({}); }

    QByteArray answer = "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n";
    QList<Request> requests;

private:
    void reply(QTcpSocket &socket, const QByteArray &head, const QByteArray &body) override;
};
