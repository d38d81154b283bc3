// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"
#include "support/FileSystem.h"

#include <QStringList>

#include <optional>

struct Destination {
    QString path = {};
    FileIds sources = {};
    QStringList otherResults = {};
    bool overwrite = false;
};

/// Why no result may be written there; absent when one may. Links are followed. Thread: any.
[[nodiscard]] std::optional<Outcome> refusalOf(const Destination &destination);
/// Why no result may be written to a folder. Thread: any.
[[nodiscard]] std::optional<Outcome> folderRefusal(const QString &folder);
/// Refuses a destination that is one of the sources, whatever its spelling. Thread: any.
[[nodiscard]] std::optional<Outcome> sourceRefusal(const Destination &destination);
