// SPDX-License-Identifier: MIT
#include "updates/Fetch.h"

#include "support/Configuration.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QNetworkRequest requestFor(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(
        QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setMaximumRedirectsAllowed(5);
    request.setHeader(
        QNetworkRequest::UserAgentHeader, u"VideoConverter/"_s + Configuration::version());
    // What arrives is counted as it is, and nothing unfolds into more.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

}

Fetch::Fetch(QNetworkAccessManager &network, const QUrl &url, QIODevice &target, FetchLimits limits,
    QObject *parent)
    : QObject(parent)
    , m_reply(network.get(requestFor(url)))
    , m_target(target)
    , m_limit(limits.bytes)
{
    m_reply->setParent(this);
    m_reply->setReadBufferSize(qint64{ 256 } * 1024);
    QTimer::singleShot(limits.time, m_reply, &QNetworkReply::abort);
    connect(m_reply, &QNetworkReply::readyRead, this, &Fetch::takeBytes);
    connect(m_reply, &QNetworkReply::finished, this, &Fetch::end);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &Fetch::progressed);
}

Fetch::~Fetch()
{
    m_reply->disconnect(this);
    m_reply->abort();
}

void Fetch::takeBytes()
{
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    m_fits = m_fits && m_received <= m_limit && m_target.write(bytes) == bytes.size();
    if (!m_fits)
        m_reply->abort();
}

void Fetch::end()
{
    if (m_reply->error() == QNetworkReply::NoError)
        takeBytes();
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool complete = m_reply->error() == QNetworkReply::NoError && status == 200 && m_fits;
    Q_EMIT finished(complete);
}
