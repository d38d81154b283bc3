// SPDX-License-Identifier: MIT
#include "tests/analytics/Collector.h"

#include <QJsonDocument>

QJsonObject Collector::Request::hit() const { return QJsonDocument::fromJson(body).object(); }

void Collector::reply(QTcpSocket &socket, const QByteArray &head, const QByteArray &body)
{
    requests.append({ .head = head, .body = body });
    socket.write(answer);
    socket.disconnectFromHost();
}
