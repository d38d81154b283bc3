// SPDX-License-Identifier: MIT
#include "ui/window/FileIntake.h"

#include "analytics/Analytics.h"
#include "engine/FFMPEG.h"
#include "engine/Outcome.h"
#include "support/dialogs/Sheets.h"
#include "ui/widgets/DropBox.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QPointer>

using namespace Qt::StringLiterals;

bool FileIntake::isReady() const { return m_isOpen && !QApplication::activeModalWidget(); }

void FileIntake::takeFiles(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    if (isReady()) {
        processFile(paths.constFirst());
        m_leftOut = paths.sliced(1);
    } else {
        m_kept << paths;
        m_kept.removeDuplicates();
        Q_EMIT kept();
    }
}

void FileIntake::takeKept()
{
    // A window that is about to close is disabled.
    if (m_kept.isEmpty() || !m_isOpen || !m_window->isEnabled())
        return;
    if (const auto *sheet = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        connect(sheet, &QDialog::finished, this, &FileIntake::takeKept,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    else
        processFile(m_kept.takeFirst());
}

void FileIntake::performDragOperation(const QStringList &paths)
{
    if (!isReady())
        return;
    Analytics::send(QString(), u"adding_video"_s, u"drag"_s, true);
    takeFiles(paths);
}

void FileIntake::paste()
{
    if (isReady())
        takeFiles(localFiles(QApplication::clipboard()->mimeData()));
}

void FileIntake::buttonPress()
{
    if (!isReady())
        return;
    Analytics::send(QString(), u"adding_video"_s, u"click"_s, true);
    runChooseSheet(m_window, true, [this](const QString &path) { processFile(path); });
}

void FileIntake::processFile(const QString &path)
{
    m_leftOut.clear();
    Q_EMIT started(path);
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
            self->m_cover = cover;
            self->m_duration = duration;
            Q_EMIT self->examined(cover, duration);
        });
}

void FileIntake::takeAgain()
{
    if (isReady() && m_processingInfo)
        Q_EMIT examined(m_cover, m_duration);
}
