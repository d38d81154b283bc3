// SPDX-License-Identifier: MIT
#include "analytics/Analytics.h"

#include "analytics/Dictionary.h"
#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/Defaults.h"
#include "support/Localized.h"
#include "support/MainQueue.h"
#include "support/Preferences.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUuid>

#include <atomic>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

std::atomic<bool> started = false;

QNetworkAccessManager &manager()
{
    static QNetworkAccessManager *manager = nullptr;
    if (!manager) {
        manager = new QNetworkAccessManager;
        // Its own threads have to end while there still is an application object.
        qAddPostRoutine([] { delete std::exchange(manager, nullptr); });
    }
    return *manager;
}

QString responseDescription(const QNetworkReply &reply)
{
    const QString status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toString();
    const QString reason = reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
    return status.isEmpty() ? u"nil"_s : QString(status + u' ' + reason).trimmed();
}

void post(const QByteArray &body)
{
    QUrl url(Configuration::collectorUrl());
    url.setPath(url.adjusted(QUrl::StripTrailingSlash).path() + "/collect"_L1);
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    request.setTransferTimeout();
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    // A cookie would tell the collector more than the hit does.
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    QNetworkReply *reply = manager().post(request, body);
    QObject::connect(reply, &QNetworkReply::finished, reply, [reply] {
        if (reply->error() != QNetworkReply::NoError)
            Console::print(responseDescription(*reply) + u',' + reply->errorString());
        reply->deleteLater();
    });
}

}

void Analytics::start() { started = true; }

QString Analytics::appIdentifier() { return u"ToviVideoConverter.s2.Mac"_s; }

QString Analytics::appVersion()
{
    return Bundle::main().infoString(u"CFBundleShortVersionString"_s).value_or(u"1.0"_s);
}

QString Analytics::userId()
{
    QVariant stored = Defaults::value(u"GA"_s);
    if (stored.typeId() != QMetaType::QString) {
        stored = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
        Defaults::setValue(u"GA"_s, stored);
    }
    const QString id = stored.toString();
    return id.isEmpty() ? u"unknown"_s : id;
}

QString Analytics::locale() { return languageCode().value_or(u"en"_s).toLower(); }

void Analytics::send(const QString &screen, const QString &category, const QString &action,
    const QVariant &label, std::optional<qint64> value)
{
    send(
        {
            { u"t"_s, u"event"_s },
            { u"ec"_s, category },
            { u"ea"_s, action },
            { u"el"_s, label },
            { u"ev"_s, QString::number(value.value_or(0)) },
            { u"cd"_s, screen },
        },
        Configuration::trackingId());
}

void Analytics::send(const QVariantMap &parameters, const QString &analyticsId)
{
    if (!started || !Preferences::sendsUsage() || Configuration::doNotTrack()
        || Configuration::collectorUrl().isEmpty())
        return;
    MainQueue::post([parameters, analyticsId] {
        const QVariantMap common{
            { u"v"_s, 1 },
            { u"tid"_s, analyticsId },
            { u"cid"_s, userId() },
            { u"an"_s, appIdentifier() },
            { u"av"_s, appVersion() },
            { u"ul"_s, locale() },
        };
        const auto hit = QJsonObject::fromVariantMap(parameters + common);
        post(QJsonDocument(hit).toJson(QJsonDocument::Compact));
    });
}
