// SPDX-License-Identifier: MIT
#include "updates/UpdateDownload.h"

#include "support/Configuration.h"

#include <QDir>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QStandardPaths>

#include <sodium.h>

using namespace Qt::StringLiterals;

namespace {

// Nothing of the address but a known kind gets into the name.
QString fileKind(const QUrl &url)
{
    static const QRegularExpression kinds(u"\\.(deb|dmg|zip|AppImage|tar\\.(?:gz|xz|zst))\\z"_s);
    const auto match = kinds.match(url.path());
    return match.hasMatch() ? match.captured(1) : u"download"_s;
}

bool openNew(QFile &file, const QString &folder, const QString &name, const QString &kind)
{
    QDir().mkpath(folder);
    for (int number = 1; number < 100; ++number) {
        const QString suffix = number == 1 ? QString() : u" %1"_s.arg(number);
        file.setFileName(u"%1/%2%3.%4"_s.arg(folder, name, suffix, kind));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return true;
    }
    return false;
}

}

UpdaterSettings UpdaterSettings::configured()
{
    return { .version = Configuration::version(),
        .publicKey = Configuration::updateKey(),
        .downloadFolder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) };
}

bool isSignedBy(const QString &publicKey, QByteArrayView signature, QByteArrayView message)
{
    const QByteArray key = QByteArray::fromBase64(publicKey.toLatin1());
    const auto bytes
        = [](QByteArrayView view) { return reinterpret_cast<const unsigned char *>(view.data()); };
    return key.size() == crypto_sign_PUBLICKEYBYTES && signature.size() == crypto_sign_BYTES
        && sodium_init() >= 0
        && crypto_sign_verify_detached(bytes(signature), bytes(message),
               static_cast<std::size_t>(message.size()), bytes(key))
        == 0;
}

UpdateDownload::UpdateDownload(AppcastItem item, UpdaterSettings settings)
    : m_item(std::move(item))
    , m_settings(std::move(settings))
{
}

void UpdateDownload::start()
{
    if (!m_file.open())
        return Q_EMIT ended(End::Failed, {});
    const QNetworkReply *reply = fetch(m_network, m_item.url, m_file, m_settings.fileLimits,
        [this](bool complete) { finish(complete); });
    connect(reply, &QNetworkReply::downloadProgress, this, &UpdateDownload::progressed);
}

void UpdateDownload::finish(bool complete)
{
    const qint64 size = m_file.size();
    const uchar *bytes = complete && m_file.flush() && size > 0 ? m_file.map(0, size) : nullptr;
    const QByteArrayView content(bytes, bytes ? size : 0);
    const bool isSigned = bytes && isSignedBy(m_settings.publicKey, m_item.signature, content);
    QFile file;
    const QString name = u"VideoConverter-"_s + m_item.versionText;
    const bool isOpen
        = isSigned && openNew(file, m_settings.downloadFolder, name, fileKind(m_item.url));
    if (isOpen && file.write(content.data(), size) == size && file.flush())
        return Q_EMIT ended(End::Saved, file.fileName());
    if (isOpen)
        file.remove();
    Q_EMIT ended(bytes && !isSigned ? End::Forged : End::Failed, {});
}
