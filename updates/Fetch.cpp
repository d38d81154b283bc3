// SPDX-License-Identifier: MIT
#include "updates/Fetch.h"

#include "support/Configuration.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

using namespace Qt::StringLiterals;

QNetworkReply *fetch(QNetworkAccessManager &network, const QUrl &url, QIODevice &target,
    const FetchLimits &limits, const std::function<void(bool complete)> &finished)
{
    QNetworkRequest request(url);
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(
        QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setMaximumRedirectsAllowed(5);
    request.setHeader(
        QNetworkRequest::UserAgentHeader, u"VideoConverter/"_s + Configuration::version());
    // What arrives is counted as it is, and nothing unfolds into more.
    request.setRawHeader("Accept-Encoding", "identity");
    QNetworkReply *reply = network.get(request);
    reply->setReadBufferSize(qint64{ 256 } * 1024);
    QTimer::singleShot(limits.time, reply, &QNetworkReply::abort);
    const auto takeBytes = [reply, &target, limit = limits.bytes] {
        const QByteArray bytes = reply->readAll();
        const bool fits
            = target.pos() + bytes.size() <= limit && target.write(bytes) == bytes.size();
        if (!fits)
            reply->abort();
        return fits;
    };
    QObject::connect(reply, &QNetworkReply::readyRead, reply, takeBytes);
    QObject::connect(reply, &QNetworkReply::finished, reply, [reply, takeBytes, finished] {
        reply->deleteLater();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        finished(reply->error() == QNetworkReply::NoError && takeBytes() && status == 200);
    });
    return reply;
}
