// SPDX-License-Identifier: MIT
#include "ui/desktop/SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// One request is a JSON array of absolute paths and a line end; the answer is one line.
constexpr qint64 longestRequest = 1 << 20;
constexpr auto longestWait = 900ms;
constexpr auto longestSilence = 5s;
const QByteArray taken = "taken\n"_ba;

/// Empty when instances can't meet.
QString meetingPlace()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QByteArray session = qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY");
    const QByteArray digest = QCryptographicHash::hash(session, QCryptographicHash::Sha256).toHex();
    return folder.isEmpty()
        ? folder
        : folder + "/video-converter-"_L1 + QString::fromLatin1(digest.first(16));
}

enum class Answer { Taken, Silence, Nobody };

Answer ask(const QString &place, const QByteArray &request, const QDeadlineTimer &deadline)
{
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(place);
    if (!socket.waitForConnected(left())) {
        const auto error = socket.error();
        const bool isNobody = error == QLocalSocket::ConnectionRefusedError
            || error == QLocalSocket::ServerNotFoundError;
        return isNobody ? Answer::Nobody : Answer::Silence;
    }
    socket.write(request);
    while (!socket.canReadLine() && !deadline.hasExpired() && socket.waitForReadyRead(left())) { }
    return socket.readLine(taken.size() + 1) == taken ? Answer::Taken : Answer::Silence;
}

}

SingleInstance::SingleInstance()
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::accept);
}

bool SingleInstance::handOver(const QStringList &absolutePaths)
{
    const QDeadlineTimer deadline(longestWait);
    const QString place = meetingPlace();
    const QJsonDocument paths(QJsonArray::fromStringList(absolutePaths));
    const QByteArray message = paths.toJson(QJsonDocument::Compact) + '\n';
    if (place.isEmpty() || message.size() > longestRequest)
        return false;
    // Two starts at once: the second asks only after the first has begun to listen.
    QLockFile lock(place + ".lock"_L1);
    if (!lock.tryLock(static_cast<int>(deadline.remainingTime() / 2)))
        return false;
    const Answer answer = ask(place, message, deadline);
    if (answer == Answer::Nobody) {
        QLocalServer::removeServer(place); // what a killed instance left
        m_server.listen(place);
    }
    return answer == Answer::Taken;
}

void SingleInstance::accept()
{
    while (QLocalSocket *peer = m_server.nextPendingConnection()) {
        peer->setReadBufferSize(longestRequest + 1);
        connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
        connect(peer, &QLocalSocket::readyRead, this, [this, peer] { read(peer); });
        QTimer::singleShot(longestSilence, peer, &QLocalSocket::abort);
        read(peer);
    }
}

void SingleInstance::read(QLocalSocket *peer)
{
    if (!peer->canReadLine()) {
        if (peer->bytesAvailable() > longestRequest)
            peer->abort();
        return;
    }
    const QJsonDocument request = QJsonDocument::fromJson(peer->readLine(longestRequest));
    const QStringList paths = request.toVariant().toStringList();
    if (!request.isArray() || !std::ranges::all_of(paths, QDir::isAbsolutePath))
        return peer->abort();
    peer->write(taken);
    peer->disconnectFromServer();
    Q_EMIT filesReceived(paths);
}
