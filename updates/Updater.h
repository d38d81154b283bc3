// SPDX-License-Identifier: MIT
#pragma once

#include "support/Configuration.h"
#include "updates/UpdateDownload.h"

#include <QBuffer>
#include <QNetworkAccessManager>
#include <QObject>

struct UpdateCheck {
    enum class Outcome {
        Available,
        UpToDate,
        NotConfigured,
        Failed,
        /// The feed announces newer versions, but nothing that the vendor signed.
        Untrusted,
    };
    Outcome outcome = Outcome::Failed;
    bool byUser = false;
    AppcastItem item{};
};

/// The appcast's address, empty in development builds. Thread: main.
class UpdaterDelegate {
public:
    [[nodiscard]] QString feedURLStringForUpdater(const class Updater * /*updater*/) const
    {
        return Configuration::feedUrl();
    }
};

/// Looks for newer versions, on the user's command and once a day. Thread: main.
class Updater : public QObject {
    Q_OBJECT
public:
    explicit Updater(UpdaterSettings settings);

    [[nodiscard]] const UpdaterSettings &settings() const { return m_settings; }

    void checkForUpdates();
    /// Checks a day after the last check, looking every hour; not if the user does not want it.
    void checkInBackground();
    /// Checks in the background no longer tell of this version.
    static void skip(const AppcastItem &item);

Q_SIGNALS:
    /// One for each check; those in the background report only what is available.
    void checked(const UpdateCheck &check);

private:
    void start();
    void finish(bool complete);
    [[nodiscard]] UpdateCheck judged(const QByteArray &feed) const;

    UpdaterSettings m_settings;
    UpdaterDelegate m_delegate;
    QBuffer m_feed;
    QNetworkAccessManager m_network;
    bool m_isChecking = false;
    bool m_byUser = false;
};
