// SPDX-License-Identifier: MIT
#pragma once

#include "updates/Appcast.h"
#include "updates/Fetch.h"

#include <QBuffer>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>

#include <memory>

class UpdateDownload;
class UpdaterDelegate;

struct UpdaterSettings {
    QString version;
    /// Base64 of the Ed25519 public key; without one nothing is ever downloaded.
    QString publicKey{};
    QString downloadFolder{};
    FetchLimits feedLimits{ qint64{ 1024 } * 1024, std::chrono::seconds(30) };
    FetchLimits fileLimits{ qint64{ 512 } * 1024 * 1024, std::chrono::minutes(60) };

    [[nodiscard]] static UpdaterSettings configured();
};

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
    bool isDownloadable = false;
};

/// Looks for newer versions, on the user's command and once a day. Thread: main.
class Updater : public QObject {
    Q_OBJECT
public:
    explicit Updater(UpdaterSettings settings, QObject *parent = nullptr);

    /// Asked before each check; outlives the updater.
    void setDelegate(const UpdaterDelegate *delegate) { m_delegate = delegate; }
    [[nodiscard]] const UpdaterSettings &settings() const { return m_settings; }

    void checkForUpdates();
    /// Checks when a day has passed since the last check, and looks again every hour; not at all
    /// when the user does not want it.
    void checkInBackground();
    /// Checks in the background no longer tell of this version.
    static void skip(const AppcastItem &item);
    /// A download of an item that was announced as downloadable; the caller starts it and owns it.
    [[nodiscard]] std::unique_ptr<UpdateDownload> download(const AppcastItem &item) const;

Q_SIGNALS:
    /// One for each check; those in the background report only what is available.
    void checked(const UpdateCheck &check);

private:
    [[nodiscard]] QString feedUrl() const;
    void start();
    void finish(bool complete);
    [[nodiscard]] UpdateCheck judged(const QByteArray &feed) const;
    [[nodiscard]] bool isSignedItem(const AppcastItem &item) const;

    UpdaterSettings m_settings;
    QByteArray m_publicKey;
    const UpdaterDelegate *m_delegate = nullptr;
    QTimer m_hourly;
    QBuffer m_feed;
    QNetworkAccessManager m_network;
    bool m_isChecking = false;
    bool m_byUser = false;
};
