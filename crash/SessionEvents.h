// SPDX-License-Identifier: MIT
#pragma once

#include "crash/CrashService.h"

#include <QObject>
#include <QString>

/// Tells the crash service that a session starts and, when the next one does, how this one ended.
/// Each has a random number of its own. Nothing is sent or stored unless the user has agreed to
/// everything being sent. Thread: the main one.
class SessionEvents : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Once, when the program starts; the clean end is noted when the application object is about
    /// to quit.
    void begin();

private:
    void send(const QString &event, const QString &session);

    CrashService m_service;
};
