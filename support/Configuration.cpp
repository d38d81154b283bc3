// SPDX-License-Identifier: MIT
#include "support/Configuration.h"

#include "ConfigurationValues.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

bool isLoopback(const QUrl &url)
{
    static const QStringList schemes{ u"http"_s, u"https"_s };
    static const QStringList hosts{ u"localhost"_s, u"127.0.0.1"_s, u"::1"_s };
    return schemes.contains(url.scheme()) && hosts.contains(url.host());
}

QString address(const char *built, const char *variable)
{
    const QString replacement = qEnvironmentVariable(variable);
    return isLoopback(QUrl(replacement)) ? replacement : QString::fromUtf8(built);
}

}

namespace Configuration {

QString version() { return QStringLiteral(VC_VERSION); }

QString collectorUrl() { return address(VC_COLLECTOR_URL, "VIDEO_CONVERTER_COLLECTOR_URL"); }

QString feedUrl() { return address(VC_FEED_URL, "VIDEO_CONVERTER_FEED_URL"); }

QString crashUrl() { return address(VC_CRASH_URL, "VIDEO_CONVERTER_CRASH_URL"); }

QString siteUrl() { return QStringLiteral(VC_SITE_URL); }

QString updateKey() { return QStringLiteral(VC_UPDATE_KEY); }

QString trackingId() { return QStringLiteral(VC_TRACKING_ID); }

bool doNotTrack()
{
    const QString value = qEnvironmentVariable("DO_NOT_TRACK");
    return !value.isEmpty() && value != u"0";
}

}
