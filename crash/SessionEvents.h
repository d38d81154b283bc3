// SPDX-License-Identifier: MIT
#pragma once

#include "crash/CrashService.h"

#include <QObject>
#include <QString>

/// Tells the crash service that a session starts and how the one before ended. Nothing is sent or
/// stored unless the user has agreed to everything being sent. Thread: main.
class SessionEvents : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Once, at the start; the clean end is noted when the application is about to quit.
    void begin();

private:
    void send(const QString &event, const QString &session);

    CrashService m_service;
};
