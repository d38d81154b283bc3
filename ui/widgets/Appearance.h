// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPalette>

class QDBusVariant;

/// Colours of the windows, light or dark as the desktop is, also when that changes. Where the
/// platform has colours of its own, those stay.
class Appearance : public QObject {
    Q_OBJECT

public:
    Appearance();

    [[nodiscard]] static QPalette lightPalette();
    [[nodiscard]] static QPalette darkPalette();

private Q_SLOTS:
    void settingChanged(const QString &space, const QString &key, const QDBusVariant &value);

private:
    void askDesktop();
    void setDark(bool dark);
};
