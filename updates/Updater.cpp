// SPDX-License-Identifier: MIT
#include "updates/Updater.h"

#include "support/Defaults.h"
#include "support/Preferences.h"

#include <QDateTime>
#include <QTimer>

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

Updater::Updater(UpdaterSettings settings)
    : m_settings(std::move(settings))
{
}

void Updater::checkForUpdates()
{
    m_byUser = true;
    if (m_delegate.feedURLStringForUpdater(this).isEmpty())
        return Q_EMIT checked({ .outcome = UpdateCheck::Outcome::NotConfigured, .byUser = true });
    start();
}

void Updater::checkInBackground()
{
    if (m_delegate.feedURLStringForUpdater(this).isEmpty())
        return;
    QTimer::singleShot(1h, this, &Updater::checkInBackground);
    if (Preferences::checksForUpdates() && isCheckDue())
        start();
}

void Updater::start()
{
    if (std::exchange(m_isChecking, true))
        return; // The check that runs answers.
    Defaults::setValue(lastCheckKey, QDateTime::currentDateTimeUtc());
    m_feed.open(QIODevice::WriteOnly | QIODevice::Truncate);
    fetch(m_network, QUrl(m_delegate.feedURLStringForUpdater(this)), m_feed, m_settings.feedLimits,
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
    const auto isForged = [&key = m_settings.publicKey](const AppcastItem &item) {
        return !item.url.isValid() || item.signature.size() != 64
            || !isSignedBy(key, item.versionSignature, item.signature + item.versionText.toUtf8());
    };
    auto items = parseAppcast(feed, systemName);
    const auto current = Version::parse(m_settings.version);
    if (!items || !current)
        return {};
    std::erase_if(*items, [&](const AppcastItem &item) { return item.version <= *current; });
    if (items->empty())
        return { .outcome = UpdateCheck::Outcome::UpToDate };
    if (!m_settings.publicKey.isEmpty())
        std::erase_if(*items, isForged);
    if (items->empty())
        return { .outcome = UpdateCheck::Outcome::Untrusted };
    const auto newest = std::ranges::max_element(*items, {}, &AppcastItem::version);
    return { .outcome = UpdateCheck::Outcome::Available, .item = *newest };
}
