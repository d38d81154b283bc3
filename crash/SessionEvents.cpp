// SPDX-License-Identifier: MIT
#include "crash/SessionEvents.h"

#include "crash/Crash.h"
#include "support/Configuration.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

QString notePath() { return CrashReporter::folder() + u"/session"_s; }

void note(const QString &session, const QString &state)
{
    QFile file(notePath());
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(u"%1 %2"_s.arg(session, state).toUtf8());
}

}

void SessionEvents::begin()
{
    QFile last(notePath());
    const QStringList ended = last.open(QIODevice::ReadOnly)
        ? QString::fromUtf8(last.read(256)).split(u' ')
        : QStringList();
    last.remove();
    if (!CrashService::isConfigured() || !CrashService::mayAlwaysSend())
        return;
    if (ended.size() == 2)
        send(ended[1] == u"ended" ? u"clean end"_s : u"no clean end"_s, ended[0]);

    const QString session = QUuid::createUuid().toString(QUuid::WithoutBraces);
    QDir().mkpath(CrashReporter::folder());
    note(session, u"running"_s);
    send(u"start"_s, session);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
        [session] { note(session, u"ended"_s); });
}

void SessionEvents::send(const QString &event, const QString &session)
{
    const QString text = u"Session: %1\nEvent: %2\nVersion: %3\nSystem: %4, %5\n"_s.arg(session,
        event, Configuration::version(), QSysInfo::prettyProductName(),
        QSysInfo::currentCpuArchitecture());
    m_service.post(text.toUtf8(), [](bool) {});
}
