// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPalette>

class QDBusVariant;

/// Colours as light and as rich in contrast as the desktop's, unless the platform has its own.
class Appearance : public QObject {
    Q_OBJECT

public:
    struct Look {
        bool isDark = false;
        bool hasHighContrast = false;
    };

    Appearance();

    [[nodiscard]] static QPalette palette(Look look);
    static void apply(Look look);

#ifdef Q_OS_LINUX
private Q_SLOTS:
    void settingChanged(const QString &space, const QString &key, const QDBusVariant &value);
#endif

private:
    Look m_look;
};
