// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxyFactory>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>

/// A web server on this machine that gives fixed answers, well-behaved or not, and keeps what it
/// was sent.
class LoopbackServer : public QTcpServer {
public:
    struct Answer {
        QByteArray status = "200 OK";
        QByteArray body{};
        QByteArray headers{};
        /// Leaves the rest to be waited for.
        bool isEndless = false;
    };
    struct Request {
        QByteArray head;
        QByteArray path;
        QByteArray body;

        /// The body of a usage event.
        [[nodiscard]] QJsonObject hit() const { return QJsonDocument::fromJson(body).object(); }
    };

    LoopbackServer()
    {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(*socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

    [[nodiscard]] QString address(const QString &path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }

    [[nodiscard]] bool wasSent(const QByteArray &body) const
    {
        return std::ranges::find(requests, body, &Request::body) != requests.end();
    }

    /// By path; that of the usage events stands.
    QHash<QByteArray, Answer> answers{ { "/collect", {} } };
    QList<Request> requests;

private:
    void read(QTcpSocket &socket)
    {
        const QByteArray request = socket.peek(socket.bytesAvailable());
        const qsizetype head = request.indexOf("\r\n\r\n");
        const qsizetype field = request.toLower().indexOf("content-length: ");
        const qsizetype length = field < 0 ? 0 : request.mid(field + 16).split('\r')[0].toInt();
        if (head < 0 || request.size() < head + 4 + length)
            return;
        socket.readAll();
        const QByteArray path = request.split(' ').value(1);
        requests.append({ request.first(head), path, request.mid(head + 4) });
        const Answer answer = answers.value(path, { .status = "404 Not Found" });
        // A closed connection without a length is taken for a lost one: the client asks again.
        const qsizetype promised = answer.body.size() + (answer.isEndless ? 1 : 0);
        socket.write("HTTP/1.1 " + answer.status + "\r\nConnection: close\r\nContent-Length: "
            + QByteArray::number(promised) + "\r\n" + answer.headers + "\r\n" + answer.body);
        if (!answer.isEndless)
            socket.disconnectFromHost();
    }
};
