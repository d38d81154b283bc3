// SPDX-License-Identifier: MIT
#include "crash/CrashService.h"

#include "support/Configuration.h"
#include "support/Defaults.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto alwaysSendKey = "CrashReportsAlwaysSend"_L1;

}

bool CrashService::isConfigured()
{
    return !Configuration::crashUrl().isEmpty() && !Configuration::doNotTrack();
}

bool CrashService::mayAlwaysSend() { return Defaults::value(alwaysSendKey).toBool(); }

void CrashService::setMayAlwaysSend() { Defaults::setValue(alwaysSendKey, true); }

void CrashService::post(const QByteArray &text, std::function<void(bool taken)> done)
{
    QNetworkRequest request{ QUrl(Configuration::crashUrl()) };
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"text/plain; charset=utf-8"_s);
    request.setHeader(
        QNetworkRequest::UserAgentHeader, u"VideoConverter/"_s + Configuration::version());
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply *reply = m_network.post(request, text);
    reply->setReadBufferSize(4096); // The answer's body is never read.
    QTimer::singleShot(20s, reply, &QNetworkReply::abort);
    connect(reply, &QNetworkReply::finished, this, [reply, done = std::move(done)] {
        reply->deleteLater();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        done(reply->error() == QNetworkReply::NoError && status / 100 == 2);
    });
}
