// SPDX-License-Identifier: MIT
#include "crash/CrashReports.h"

#include "crash/Crash.h"

#include <QDir>
#include <QFile>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype keptReports = 10;
constexpr qint64 reportLimit = qint64{ 64 } * 1024;

QStringList reports(const QString &suffix)
{
    QStringList paths;
    const QDir folder(CrashReporter::folder());
    const auto entries
        = folder.entryInfoList(QDir::Files | QDir::NoSymLinks, QDir::Time | QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (entry.fileName().startsWith("crash-"_L1) && entry.fileName().endsWith(suffix))
            paths.append(entry.filePath());
    }
    return paths;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(reportLimit) : QByteArray();
}

QString marked(const QString &path, const QString &state)
{
    const QFileInfo file(path);
    const QString newPath = u"%1/%2.%3.txt"_s.arg(file.path(), file.baseName(), state);
    return QFile::rename(path, newPath) ? newPath : path;
}

}

CrashReports::CrashReports(QObject *parent)
    : QObject(parent)
{
    const QStringList old = reports(u".txt"_s).mid(keptReports);
    for (const QString &path : old)
        QFile::remove(path);
}

QStringList CrashReports::pending() const
{
    QStringList paths = reports(u".txt"_s);
    paths.removeIf([](const QString &path) { return QFileInfo(path).completeSuffix() != u"txt"; });
    return paths;
}

void CrashReports::uploadPending(const Question &ask)
{
    if (!CrashService::isConfigured())
        return;
    const QPointer<CrashReports> self(this);
    const QStringList agreed = reports(u".agreed.txt"_s);
    for (const QString &path : pending()) {
        const SendReport answer = CrashService::mayAlwaysSend()
            ? SendReport::Always
            : ask(QString::fromUtf8(contents(path)));
        if (!self)
            return; // The question is a window; the program may have ended under it.
        if (answer == SendReport::Always)
            CrashService::setMayAlwaysSend();
        if (answer == SendReport::No)
            marked(path, u"refused"_s);
        else
            upload(marked(path, u"agreed"_s));
    }
    for (const QString &path : agreed)
        upload(path);
}

void CrashReports::upload(const QString &path)
{
    m_service.post(contents(path), [path](bool taken) {
        if (taken)
            marked(path, u"sent"_s);
    });
}
