// SPDX-License-Identifier: MIT
#include "ui/window/FileIntake.h"

#include "analytics/Analytics.h"
#include "engine/FFMPEG.h"
#include "engine/Outcome.h"
#include "support/Path.h"
#include "support/dialogs/Sheets.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPointer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Absent unless every entry is a file of this machine.
std::optional<QStringList> fileNames(const QMimeData *data)
{
    if (!data || !data->hasUrls())
        return std::nullopt;
    QStringList paths;
    for (const QUrl &url : data->urls()) {
        if (!url.isLocalFile())
            return std::nullopt;
        paths << url.toLocalFile();
    }
    return paths;
}

}

FileIntake::FileIntake(QWidget *window)
    : m_window(window)
{
}

bool FileIntake::isReady() const { return m_isOpen && !QApplication::activeModalWidget(); }

void FileIntake::takeFiles(const QStringList &paths)
{
    if (!isReady() || paths.isEmpty())
        return;
    Analytics::send(QString(), u"adding_video"_s, u"drag"_s, true);
    processFile(paths.constFirst());
}

void FileIntake::performDragOperation(const QMimeData *data)
{
    if (const auto paths = fileNames(data))
        takeFiles(*paths);
}

void FileIntake::paste() { performDragOperation(QApplication::clipboard()->mimeData()); }

void FileIntake::buttonPress()
{
    if (!isReady())
        return;
    Analytics::send(QString(), u"adding_video"_s, u"click"_s, true);
    runChooseSheet(m_window, true, [this](const QString &path) { processFile(path); });
}

void FileIntake::processFile(const QString &path)
{
    Q_EMIT started();
    const QPointer<FileIntake> self(this);
    const auto isCurrent = [self, count = ++m_count] { return self && self->m_count == count; };
    FFMPEG::collectMovieInfo(
        path,
        [self, isCurrent](const Outcome &refusal) {
            if (isCurrent())
                Q_EMIT self->refused(refusal);
        },
        [self, isCurrent, path](const JSON &json, const QImage &cover, const QString &duration) {
            if (!isCurrent())
                return;
            self->m_processingInfo = json;
            self->m_processingFilePath = path;
            self->m_selectedFileExt = Path::pathExtension(path);
            Q_EMIT self->examined(cover, duration);
        });
}
