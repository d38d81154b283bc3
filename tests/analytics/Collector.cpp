// SPDX-License-Identifier: MIT
#include "tests/analytics/Collector.h"

#include <QJsonDocument>
#include <QTcpSocket>

#include <memory>

using namespace Qt::StringLiterals;

QJsonObject Collector::Request::hit() const { return QJsonDocument::fromJson(body).object(); }

Collector::Collector()
{
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        QTcpSocket *socket = nextPendingConnection();
        const auto received = std::make_shared<QByteArray>();
        connect(socket, &QTcpSocket::readyRead, this, [=, this] { read(socket, *received); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
}

QString Collector::url() const { return u"http://127.0.0.1:"_s + QString::number(serverPort()); }

void Collector::read(QTcpSocket *socket, QByteArray &received)
{
    received += socket->readAll();
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    const QByteArray head = received.first(end);
    const qsizetype start = head.toLower().indexOf("content-length: ") + 16;
    const qsizetype size = head.mid(start, head.indexOf('\r', start) - start).toLongLong();
    if (received.size() < end + 4 + size)
        return;
    requests.append({ .head = head, .body = received.mid(end + 4, size) });
    received.clear();
    socket->write(answer);
    socket->disconnectFromHost();
}
