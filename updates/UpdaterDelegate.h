// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class Updater;

/// Fixes the address of the update feed in code.
/// Thread: the main one.
class UpdaterDelegate : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Address of the appcast, asked for before each check and always the same; empty in
    /// development builds.
    [[nodiscard]] QString feedURLStringForUpdater(const Updater *updater) const;
};
