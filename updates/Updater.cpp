// SPDX-License-Identifier: MIT
#include "updates/Updater.h"

#include "support/Configuration.h"
#include "support/Defaults.h"
#include "support/Preferences.h"
#include "updates/UpdateDownload.h"
#include "updates/UpdaterDelegate.h"

#include <QDateTime>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto lastCheckKey = "LastUpdateCheck"_L1;
constexpr auto skippedKey = "SkippedVersion"_L1;
constexpr qint64 secondsPerDay = 86400;

#ifdef Q_OS_MACOS
constexpr auto systemName = "macos"_L1;
#else
constexpr auto systemName = "linux"_L1;
#endif

// A clock that was set back does not put the next check off for long.
bool isCheckDue()
{
    const QDateTime last = Defaults::value(lastCheckKey).toDateTime();
    return !last.isValid() || qAbs(last.secsTo(QDateTime::currentDateTimeUtc())) >= secondsPerDay;
}

}

UpdaterSettings UpdaterSettings::configured()
{
    return { .version = Configuration::version(),
        .publicKey = Configuration::updateKey(),
        .downloadFolder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) };
}

Updater::Updater(UpdaterSettings settings, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
    , m_publicKey(QByteArray::fromBase64(m_settings.publicKey.toLatin1()))
{
    connect(&m_hourly, &QTimer::timeout, this, &Updater::checkInBackground);
}

void Updater::checkForUpdates()
{
    m_byUser = true;
    if (feedUrl().isEmpty())
        return Q_EMIT checked({ .outcome = UpdateCheck::Outcome::NotConfigured, .byUser = true });
    start();
}

void Updater::checkInBackground()
{
    if (feedUrl().isEmpty())
        return;
    m_hourly.start(1h);
    if (Preferences::checksForUpdates() && isCheckDue())
        start();
}

QString Updater::feedUrl() const
{
    return m_delegate ? m_delegate->feedURLStringForUpdater(this) : QString();
}

void Updater::start()
{
    if (std::exchange(m_isChecking, true))
        return; // The check that runs answers.
    Defaults::setValue(lastCheckKey, QDateTime::currentDateTimeUtc());
    m_feed.setData(QByteArray());
    m_feed.open(QIODevice::WriteOnly);
    fetch(m_network, QUrl(feedUrl()), m_feed, m_settings.feedLimits,
        [this](bool complete) { finish(complete); });
}

void Updater::finish(bool complete)
{
    m_isChecking = false;
    m_feed.close();
    UpdateCheck check = complete ? judged(m_feed.data()) : UpdateCheck{};
    check.byUser = std::exchange(m_byUser, false);
    const bool isNews = check.outcome == UpdateCheck::Outcome::Available
        && check.item.versionText != Defaults::value(skippedKey).toString();
    if (check.byUser || isNews)
        Q_EMIT checked(check);
}

void Updater::skip(const AppcastItem &item) { Defaults::setValue(skippedKey, item.versionText); }

UpdateCheck Updater::judged(const QByteArray &feed) const
{
    auto items = parseAppcast(feed, systemName);
    const auto current = Version::parse(m_settings.version);
    if (!items || !current)
        return {};
    std::erase_if(*items, [&](const AppcastItem &item) { return item.version <= *current; });
    if (items->empty())
        return { .outcome = UpdateCheck::Outcome::UpToDate };
    const bool hasKey = !m_settings.publicKey.isEmpty();
    if (hasKey)
        std::erase_if(*items, [this](const AppcastItem &item) { return !isSignedItem(item); });
    if (items->empty())
        return { .outcome = UpdateCheck::Outcome::Untrusted };
    const auto newest = std::ranges::max_element(*items, {}, &AppcastItem::version);
    return {
        .outcome = UpdateCheck::Outcome::Available, .item = *newest, .isDownloadable = hasKey
    };
}

bool Updater::isSignedItem(const AppcastItem &item) const
{
    return item.url.isValid() && item.signature.size() == 64
        && isSignedBy(
            m_publicKey, item.versionSignature, item.signature + item.versionText.toUtf8());
}

std::unique_ptr<UpdateDownload> Updater::download(const AppcastItem &item) const
{
    return std::make_unique<UpdateDownload>(item,
        UpdateDownload::Target{ m_publicKey, m_settings.downloadFolder, m_settings.fileLimits });
}
