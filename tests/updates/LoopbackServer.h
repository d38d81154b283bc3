// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

/// A web server on this machine that gives fixed answers, well-behaved or not, and keeps the bodies
/// it was sent.
class LoopbackServer : public QTcpServer {
public:
    struct Answer {
        QByteArray status = "200 OK";
        QByteArray body{};
        QByteArray headers{};
        /// Sends a few bytes now and then and never ends.
        bool isEndless = false;
    };

    LoopbackServer()
    {
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

    QHash<QByteArray, Answer> answers;
    QList<QByteArray> paths;
    QList<QByteArray> bodies;

private:
    void read(QTcpSocket &socket)
    {
        QByteArray &request = m_requests[&socket];
        request += socket.readAll();
        const qsizetype head = request.indexOf("\r\n\r\n");
        if (head < 0)
            return;
        const qsizetype field = request.toLower().indexOf("content-length:");
        const qsizetype length = field < 0
            ? 0
            : request.mid(field + 15, 12).split('\r').first().trimmed().toLongLong();
        if (request.size() < head + 4 + length)
            return;
        const QByteArray complete = m_requests.take(&socket);
        reply(socket, complete.first(head), complete.mid(head + 4));
    }

    virtual void reply(QTcpSocket &socket, const QByteArray &head, const QByteArray &body)
    {
        const QByteArray path = head.split(' ').value(1);
        paths.append(path);
        bodies.append(body);
        answer(socket, answers.value(path, { .status = "404 Not Found" }));
    }

    static void answer(QTcpSocket &socket, const Answer &answer)
    {
        socket.write("HTTP/1.1 " + answer.status + "\r\nConnection: close\r\n" + answer.headers);
        if (answer.isEndless) {
            socket.write("\r\n" + answer.body);
            auto *timer = new QTimer(&socket);
            QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write(" "); });
            timer->start(20);
            return;
        }
        socket.write(
            "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n\r\n" + answer.body);
        socket.disconnectFromHost();
    }

    QHash<QTcpSocket *, QByteArray> m_requests;
};
