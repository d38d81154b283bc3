// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class Updater;

/// The appcast's address, empty in development builds. Thread: main.
class UpdaterDelegate : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    [[nodiscard]] QString feedURLStringForUpdater(const Updater *updater) const;
};
