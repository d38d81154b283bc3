// SPDX-License-Identifier: MIT
#pragma once

#include "updates/Version.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

/// One version that the feed announces. The feed may have been forged: only what a signature covers
/// is to be believed.
struct AppcastItem {
    Version version;
    QString versionText;
    QString displayVersion;
    /// Mark-up, as the feed has it.
    QString notes;
    /// Where the file lies: a web address, or empty.
    QUrl url;
    /// Ed25519 signature of the file.
    QByteArray signature;
    /// Ed25519 signature of the bytes of `signature` followed by `versionText`. It ties the file to
    /// its version, so that an old file can't be passed off as a new one.
    QByteArray versionSignature;
};

/// Reads an appcast: the items of the release channel that have a version and suit the system
/// ("linux", "macos"); one that names no system suits all. Absent for anything but well-formed XML
/// of that kind; documents with a document type are refused unread, for what they may declare.
[[nodiscard]] std::optional<std::vector<AppcastItem>> parseAppcast(
    const QByteArray &xml, const QString &system);
