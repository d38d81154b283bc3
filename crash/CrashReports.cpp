// SPDX-License-Identifier: MIT
#include "crash/CrashReports.h"

#include "crash/Crash.h"
#include "support/Configuration.h"
#include "support/Defaults.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>
#include <QUuid>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype keptReports = 10;
constexpr qint64 reportLimit = qint64{ 64 } * 1024;
constexpr auto alwaysSendKey = "CrashReportsAlwaysSend"_L1;

bool isConfigured() { return !Configuration::crashUrl().isEmpty() && !Configuration::doNotTrack(); }

bool mayAlwaysSend() { return Defaults::value(alwaysSendKey).toBool(); }

/// Newest first.
QFileInfoList reports(QLatin1StringView suffix)
{
    QFileInfoList files
        = QDir(CrashReporter::folder())
              .entryInfoList(QDir::Files | QDir::NoSymLinks, QDir::Time | QDir::Name);
    files.removeIf([&](const QFileInfo &file) {
        return !file.fileName().startsWith("crash-"_L1) || !file.fileName().endsWith(suffix);
    });
    return files;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(reportLimit) : QByteArray();
}

QFileInfo marked(const QFileInfo &file, const QString &state)
{
    const QString newPath = u"%1/%2.%3.txt"_s.arg(file.path(), file.baseName(), state);
    return QFile::rename(file.filePath(), newPath) ? QFileInfo(newPath) : file;
}

QString notePath() { return CrashReporter::folder() + u"/session"_s; }

void note(const QString &session, const QString &state)
{
    QFile file(notePath());
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(u"%1 %2"_s.arg(session, state).toUtf8());
}

}

void CrashReports::uploadPending(const Question &ask)
{
    QFileInfoList pending = reports(".txt"_L1);
    while (pending.size() > keptReports)
        QFile::remove(pending.takeLast().filePath());
    pending.removeIf([](const QFileInfo &file) { return file.completeSuffix() != u"txt"; });
    if (!isConfigured())
        return;
    const QPointer<QObject> alive(&m_network);
    QFileInfoList agreed = reports(".agreed.txt"_L1);
    for (const QFileInfo &file : pending) {
        const SendReport answer = mayAlwaysSend()
            ? SendReport::Always
            : ask(QString::fromUtf8(contents(file.filePath())));
        if (!alive)
            return; // The question is a window; the program may have ended under it.
        if (answer == SendReport::Always)
            Defaults::setValue(alwaysSendKey, true);
        if (answer == SendReport::No)
            marked(file, u"refused"_s);
        else
            agreed.append(marked(file, u"agreed"_s));
    }
    for (const QFileInfo &file : agreed)
        post(contents(file.filePath()), [file] { marked(file, u"sent"_s); });
}

void CrashReports::beginSession()
{
    const QStringList ended = QString::fromUtf8(contents(notePath())).split(u' ');
    QFile::remove(notePath());
    if (!isConfigured() || !mayAlwaysSend())
        return;
    if (ended.size() == 2)
        sendEvent(ended[1] == u"ended" ? u"clean end"_s : u"no clean end"_s, ended[0]);

    const QString session = QUuid::createUuid().toString(QUuid::WithoutBraces);
    note(session, u"running"_s);
    sendEvent(u"start"_s, session);
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &m_network,
        [session] { note(session, u"ended"_s); });
}

void CrashReports::sendEvent(const QString &event, const QString &session)
{
    const QString text = u"Session: %1\nEvent: %2\nVersion: %3\nSystem: %4, %5\n"_s.arg(session,
        event, Configuration::version(), QSysInfo::prettyProductName(),
        QSysInfo::currentCpuArchitecture());
    post(text.toUtf8(), [] {});
}

void CrashReports::post(const QByteArray &text, const std::function<void()> &taken)
{
    QNetworkRequest request{ QUrl(Configuration::crashUrl()) };
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"text/plain; charset=utf-8"_s);
    request.setHeader(
        QNetworkRequest::UserAgentHeader, u"VideoConverter/"_s + Configuration::version());
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply *reply = m_network.post(request, text);
    reply->setReadBufferSize(4096); // The answer's body is never read.
    QTimer::singleShot(20s, reply, &QNetworkReply::abort);
    QObject::connect(reply, &QNetworkReply::finished, &m_network, [reply, taken] {
        reply->deleteLater();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (reply->error() == QNetworkReply::NoError && status / 100 == 2)
            taken();
    });
}
