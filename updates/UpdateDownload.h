// SPDX-License-Identifier: MIT
#pragma once

#include "updates/Appcast.h"
#include "updates/Fetch.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QTemporaryFile>

struct UpdaterSettings {
    QString version;
    /// Base64 of the Ed25519 public key; without one nothing is ever downloaded.
    QString publicKey{};
    QString downloadFolder{};
    FetchLimits feedLimits{ qint64{ 1024 } * 1024, std::chrono::seconds(30) };
    FetchLimits fileLimits{ qint64{ 512 } * 1024 * 1024, std::chrono::minutes(60) };

    [[nodiscard]] static UpdaterSettings configured();
};

/// An Ed25519 signature of 64 bytes over exactly these bytes. The key is in Base64. Thread: any.
[[nodiscard]] bool isSignedBy(
    const QString &publicKey, QByteArrayView signature, QByteArrayView message);

/// Fetches the file of one item and, only when its signature verifies, puts it into a folder under
/// a name that never replaces anything. Thread: main.
class UpdateDownload : public QObject {
    Q_OBJECT
public:
    /// Forged: the file arrived, but is not what the vendor signed.
    enum class End { Saved, Forged, Failed };

    UpdateDownload(AppcastItem item, UpdaterSettings settings);

    void start();

Q_SIGNALS:
    void progressed(qint64 received, qint64 total);
    /// The path is empty when nothing was kept.
    void ended(UpdateDownload::End end, const QString &path);

private:
    void finish(bool complete);

    AppcastItem m_item;
    UpdaterSettings m_settings;
    QTemporaryFile m_file;
    QNetworkAccessManager m_network;
};
