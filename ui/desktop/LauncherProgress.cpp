// SPDX-License-Identifier: MIT
#include "ui/desktop/LauncherProgress.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

void LauncherProgress::show(std::optional<int> percent, bool urgent)
{
    if (percent == m_percent && urgent == m_urgent)
        return;
    m_percent = percent;
    m_urgent = urgent;
    const QVariantMap properties{ { u"progress"_s, percent.value_or(0) / 100.0 },
        { u"progress-visible"_s, percent.has_value() }, { u"urgent"_s, urgent } };
    QDBusMessage signal = QDBusMessage::createSignal(
        u"/org/example/VideoConverter"_s, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    signal << u"application://%1.desktop"_s.arg(QGuiApplication::desktopFileName()) << properties;
    QDBusConnection::sessionBus().send(signal);
}
