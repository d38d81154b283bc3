// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPalette>

class QDBusVariant;

/// Colours of the windows, light or dark as the desktop is, also when that changes while the
/// program runs. Where the platform gives the program colours of its own, those stay. Thread: main;
/// no call waits for the desktop.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Takes effect on all windows at once.
    Appearance();

    [[nodiscard]] static QPalette lightPalette();
    [[nodiscard]] static QPalette darkPalette();

private Q_SLOTS:
    void settingChanged(const QString &space, const QString &key, const QDBusVariant &value);

private:
    void askDesktop();
    void setDark(bool dark);
};
