// SPDX-License-Identifier: MIT
#include "ui/window/ConversionFlow.h"

#include "analytics/Analytics.h"
#include "engine/Conversion.h"
#include "engine/Destination.h"
#include "engine/Remedy.h"
#include "planning/ConversionDescriptor.h"
#include "planning/PlannedWork.h"
#include "support/Localized.h"
#include "support/MainQueue.h"
#include "support/Path.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Sheets.h"
#include "ui/desktop/FileBrowser.h"
#include "ui/window/FileIntake.h"
#include "ui/window/ProposedName.h"
#include "ui/window/VideoWords.h"

#include <QApplication>
#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;

ConversionFlow::ConversionFlow(QMainWindow &window, const FileIntake &intake)
    : m_window(window)
    , m_intake(intake)
{
}

ConversionFlow::~ConversionFlow()
{
    setProgress(nullptr);
    // Nobody would see the rest of it.
    if (m_run)
        m_run->cancel();
}

void ConversionFlow::choose(const std::optional<VideoConstraints> &constraints)
{
    if (!constraints || !m_intake.processingInfo() || QApplication::activeModalWidget())
        return;
    const QString source = m_intake.processingFilePath();
    const QString folder = Path::stringByDeletingLastPathComponent(source);
    const QString ext = conversionDescriptor(constraints->format).ext;
    runSaveToSheet(
        &m_window, proposedName(source, saveFolder(folder), ext), ext,
        [this, entry = *constraints](const QString &destPath) {
            Analytics::send(QString(), u"convert"_s, u"from_to"_s,
                QString(Path::pathExtension(destPath) + u'_' + entry.destDevice));
            startConversion(destPath, entry);
        },
        folder,
        [source](const QString &destPath) {
            // The sheet asks before it gives a file's name.
            const auto refusal
                = refusalOf({ .path = destPath, .sources = { source }, .overwrite = true });
            return refusal ? sentenceOf(*refusal) : QString();
        },
        VideoWords::expectedSize(expectedSize(*constraints, *m_intake.processingInfo())));
}

void ConversionFlow::startConversion(const QString &destPath, const VideoConstraints &constraints)
{
    m_window.raise();
    m_window.activateWindow();
    m_resultFilePath = destPath;
    const QPointer<ConversionFlow> self(this);
    // The user has agreed to replace what stands there now.
    const OlderFile olderFile = QFileInfo::exists(destPath) ? OlderFile::Replaced : OlderFile::Kept;
    m_job = ConversionJob{ m_intake.processingFilePath(), destPath, constraints,
        *m_intake.processingInfo() };
    announceWork(Remedy::None);
    m_run = Conversion::start(*m_job, olderFile, [self](const std::optional<QString> &errmsg) {
        if (self)
            self->failWhileConverting(errmsg);
    });
    setProgress(m_run);
    m_run->setEndHandler([self] { MainQueue::post([self] { self ? self->end() : void(); }); });
}

void ConversionFlow::setProgress(std::shared_ptr<Progress> progress)
{
    if (m_progress) {
        for (const Progress::Key key : overalProgressObservedKeys)
            m_progress->removeObserver(key, this);
    }
    m_progress = std::move(progress);
    if (!m_progress)
        return;
    // The news comes on any thread, and some may be left of an object that is detached.
    const auto passOn = [self = QPointer(this), object = std::weak_ptr(m_progress)](auto news) {
        MainQueue::post([self, object, news] {
            if (self && self->m_progress && self->m_progress == object.lock())
                (self.data()->*news)();
        });
    };
    for (const Progress::Key key : overalProgressObservedKeys)
        m_progress->addObserver(
            key, this, [passOn](Progress::Key) { passOn(&ConversionFlow::updateProgress); });
    m_progress->setCancellationHandler([passOn] { passOn(&ConversionFlow::progressWasCancelled); });
    updateProgress();
}

void ConversionFlow::updateProgress()
{
    if (const Remedy remedy = m_progress->remedy(); remedy != m_remedy)
        announceWork(remedy);
    Q_EMIT progressed(m_progress->isIndeterminate() ? -1 : m_progress->fractionCompleted(),
        m_progress->completedUnitCount());
    if (m_progress->completedUnitCount() != m_progress->totalUnitCount())
        return;
    const Outcome outcome = m_progress->outcome();
    setProgress(nullptr);
    Q_EMIT finished(outcome);
}

void ConversionFlow::announceWork(Remedy remedy)
{
    m_remedy = remedy;
    const ConversionJob job = remedied(*m_job, remedy);
    Q_EMIT workChanged(plannedWork(job.constraints, job.conversionInfo), remedy != Remedy::None);
}

void ConversionFlow::failWhileConverting(const std::optional<QString> &errmsg)
{
    const Outcome outcome = m_run->outcome();
    QString format = localized(QT_TRANSLATE_NOOP3(
        "Localizable", "Error processing %@", "Error message on conversion failure"));
    // Without the engine's message the outcome says why. In a format, percent signs count twice.
    format += u'\n' + errmsg.value_or(sentenceOf(outcome).replace(u'%', u"%%"_s));
    const QString message
        = formatted(format, { Path::lastPathComponent(m_intake.processingFilePath()) });
    // The picture of a short result stays while the alert stands.
    setProgress(nullptr);
    Q_EMIT failed(outcome, message);
    ++m_alerts;
    displayError(message);
    --m_alerts;
    if (kindOf(outcome) == OutcomeKind::Incomplete)
        Q_EMIT finished(outcome);
    end();
}

void ConversionFlow::end()
{
    if (m_alerts == 0 && !isRunning())
        Q_EMIT ended();
}

bool ConversionFlow::cancelIfConfirmed()
{
    if (!m_progress)
        return true;
    if (QApplication::activeModalWidget()
        || !displayQuestion(localized(QT_TRANSLATE_NOOP3("Localizable",
            "Attention! Current converting process will be cancelled.\nAre you sure you want to "
            "continue?",
            "Cancel progress alert message text"))))
        return false;
    Analytics::send(QString(), u"convert"_s, u"abort"_s, true);
    // The conversion may have ended while the question stood.
    if (m_progress) {
        m_progress->cancel();
        progressWasCancelled();
    }
    return true;
}

void ConversionFlow::progressWasCancelled()
{
    QMetaObject::invokeMethod(
        this, [this, sender = m_progress] { Q_EMIT cancelled(sender->outcome()); },
        Qt::QueuedConnection);
    setProgress(nullptr);
}

void ConversionFlow::openFolder() const
{
    QFileInfo::exists(m_resultFilePath)
        ? FileBrowser::reveal(m_resultFilePath)
        : FileBrowser::open(Path::stringByDeletingLastPathComponent(m_resultFilePath));
}

void ConversionFlow::openResult() const
{
    QFileInfo::exists(m_resultFilePath) ? FileBrowser::open(m_resultFilePath) : openFolder();
}
