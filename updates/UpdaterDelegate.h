// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class Updater;

/// Fixes the address of the update feed in code. Thread: main.
class UpdaterDelegate : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// The appcast's address, always the same; empty in development builds.
    [[nodiscard]] QString feedURLStringForUpdater(const Updater *updater) const;
};
