// SPDX-License-Identifier: MIT
#pragma once

#include "updates/Version.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

/// One version that the feed announces. Only what a signature covers is to be believed.
struct AppcastItem {
    Version version;
    QString versionText;
    QString displayVersion;
    /// Mark-up, as the feed has it.
    QString notes;
    QUrl url;
    QByteArray signature;
    /// Of the bytes of `signature` and `versionText`, so that no old file passes for a new one.
    QByteArray versionSignature;
};

/// The items of the release channel that have a version and suit the system ("linux", "macos") or
/// name none. Absent for anything but well-formed XML of that kind; a document type is refused
/// unread, for what it may declare.
[[nodiscard]] std::optional<std::vector<AppcastItem>> parseAppcast(
    const QByteArray &xml, const QString &system);
