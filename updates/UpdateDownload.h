// SPDX-License-Identifier: MIT
#pragma once

#include "updates/Appcast.h"
#include "updates/Fetch.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QTemporaryFile>

/// An Ed25519 signature over exactly these bytes. Keys are 32 bytes, signatures 64. Thread: any.
[[nodiscard]] bool isSignedBy(
    QByteArrayView publicKey, QByteArrayView signature, QByteArrayView message);

/// Fetches the file of one item and, only when its signature verifies, puts it into a folder under
/// a name that never replaces anything. Thread: main.
class UpdateDownload : public QObject {
    Q_OBJECT
public:
    struct Target {
        QByteArray publicKey;
        QString folder;
        FetchLimits limits;
    };

    UpdateDownload(AppcastItem item, Target target, QObject *parent = nullptr);

    void start();

Q_SIGNALS:
    void progressed(qint64 received, qint64 total);
    void saved(const QString &path);
    /// Nothing was kept. `forged`: the file arrived, but is not what the vendor signed.
    void failed(bool forged);

private:
    void finish(bool complete);

    AppcastItem m_item;
    Target m_target;
    QTemporaryFile m_file;
    QNetworkAccessManager m_network;
};
