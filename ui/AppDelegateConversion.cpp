// SPDX-License-Identifier: MIT
#include "analytics/Analytics.h"
#include "engine/FFMPEG.h"
#include "planning/ConversionDescriptor.h"
#include "support/FileSystem.h"
#include "support/Format.h"
#include "support/Localized.h"
#include "support/MainQueue.h"
#include "support/Path.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Sheets.h"
#include "ui/AppDelegate.h"
#include "ui/ConversionStatus.h"
#include "ui/ProposedName.h"
#include "ui/desktop/FileBrowser.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QFileInfo>
#include <QPointer>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// Some desktops mark a letter of a menu item as its key.
QString title(const QAction *item) { return item->text().remove(u'&'); }

bool confirmsCancel()
{
    return displayQuestion(localized(QT_TRANSLATE_NOOP3("Localizable",
        "Attention! Current converting process will be cancelled.\nAre you sure you want to "
        "continue?",
        "Cancel progress alert message text")));
}

}

/// What the user picked in the format menu.
struct AppDelegate::Choice {
    VideoConstraints constraints;
    QString ext;
};

void AppDelegate::rawFormatMenuItemPressed(const QAction *item)
{
    const auto constraints = videoConstraints(title(item), title(m_outlets->audioMenuItem),
        title(m_outlets->mp4LowQualityMenuItem), title(m_outlets->mp4MeduimQualityMenuItem));
    if (constraints && m_processingInfo && !isBlocked())
        askForDestination({ *constraints, conversionDescriptor(constraints->format).ext });
}

void AppDelegate::askForDestination(const Choice &choice)
{
    const QString sourceFolder = Path::stringByDeletingLastPathComponent(m_processingFilePath);
    const QString name = proposedName(m_processingFilePath, saveFolder(sourceFolder), choice.ext);
    runSaveToSheet(
        &m_window, name, choice.ext,
        [this, choice](const QString &destPath) { destinationWasChosen(choice, destPath); },
        sourceFolder);
}

void AppDelegate::destinationWasChosen(const Choice &choice, const QString &destPath)
{
    if (destPath == m_processingFilePath || isSameFile(destPath, m_processingFilePath)) {
        displayError(
            localized(QT_TRANSLATE_NOOP3("Localizable", "The video can't be converted into itself",
                "the chosen destination is the source file")),
            localized(QT_TRANSLATE_NOOP3("Localizable",
                "Choose another name or another folder for the result.",
                "the chosen destination is the source file")));
        askForDestination(choice);
        return;
    }
    Analytics::send(QString(), u"convert"_s, u"from_to"_s,
        QString(Path::pathExtension(destPath) + u'_' + choice.constraints.destDevice));
    startConversion(destPath, choice.constraints);
}

void AppDelegate::startConversion(const QString &destPath, const VideoConstraints &constraints)
{
    m_window.raise();
    m_window.activateWindow();
    m_resultFilePath = destPath;
    const QPointer<AppDelegate> self(this);
    m_run = FFMPEG::convertFile(m_processingFilePath, destPath, constraints, *m_processingInfo,
        [self, path = m_processingFilePath, probe = m_probe](const std::optional<QString> &errmsg) {
            // A tool that fails after its bar was full may find a later video in the window.
            if (self && self->m_probe == probe)
                self->failWhileConverting(errmsg);
            else if (self)
                self->tellFailure(path, errmsg);
        });
    setProgress(m_run);
    m_run->setEndHandler([self] {
        MainQueue::post([self] {
            if (self)
                self->closeIfAsked();
        });
    });
}

void AppDelegate::setProgress(std::shared_ptr<Progress> progress)
{
    const Progress::Context context = &m_convertObservationContext;
    if (m_progress) {
        for (const Progress::Key key : overalProgressObservedKeys)
            m_progress->removeObserver(key, context);
    }
    m_progress = std::move(progress);
    if (!m_progress)
        return;
    const std::shared_ptr<Progress> attached = m_progress;
    const std::weak_ptr<Progress> object = attached;
    const QPointer<AppDelegate> self(this);
    // Both run on whatever thread changes the object, so they only pass the news on.
    for (const Progress::Key key : overalProgressObservedKeys) {
        attached->addObserver(key, context, [self, context, object](Progress::Key) {
            MainQueue::post([self, context, object] {
                if (self)
                    self->observeValueForKeyPath(context, object);
            });
        });
    }
    updateProgress();
    attached->setCancellationHandler([self, object] {
        if (!MainQueue::isMainThread())
            MainQueue::post([self, object] { self ? self->progressWasCancelled(object) : void(); });
        else if (self)
            self->progressWasCancelled(object);
    });
}

void AppDelegate::observeValueForKeyPath(
    Progress::Context context, const std::weak_ptr<Progress> &object)
{
    // News of an object that is no longer attached may still wait in the queue.
    const std::shared_ptr<Progress> sender = object.lock();
    if (context == &m_convertObservationContext && sender && sender == m_progress)
        updateProgress();
}

void AppDelegate::updateProgress()
{
    if (m_uiState != WindowUIState::Converting && m_uiState != WindowUIState::ConversionIsDone)
        setUiState(WindowUIState::Converting);
    if (!m_progress)
        return;
    const bool lengthIsKnown = !m_progress->isIndeterminate();
    const double fraction = m_progress->fractionCompleted();
    m_outlets->progressBar->setBusy(!lengthIsKnown);
    m_outlets->progressBar->setDoubleValue(fraction);
    m_status->setFraction(lengthIsKnown ? fraction : -1);
    if (m_progress->completedUnitCount() != m_progress->totalUnitCount() || !m_processingInfo)
        return;
    setUiState(WindowUIState::ConversionIsDone);
    setProgress(nullptr);
    m_status->notify(m_outlets->conversionCompleteStatusLabel->text(),
        Path::lastPathComponent(m_resultFilePath));
}

void AppDelegate::failWhileConverting(const std::optional<QString> &errmsg)
{
    setUiState(WindowUIState::InitialState);
    tellFailure(m_processingFilePath, errmsg);
}

void AppDelegate::tellFailure(const QString &path, const std::optional<QString> &errmsg)
{
    QString format = localized(QT_TRANSLATE_NOOP3(
        "Localizable", "Error processing %@", "Error message on conversion failure"));
    if (errmsg)
        format += u'\n' + *errmsg;
    const QString message = formatted(format, { Path::lastPathComponent(path) });
    m_status->notify(m_window.windowTitle(), message);
    ++m_alerts;
    displayError(message);
    --m_alerts;
    closeIfAsked();
}

void AppDelegate::cancelProgressPressed() { std::ignore = cancelIfConfirmed(); }

bool AppDelegate::cancelIfConfirmed()
{
    if (!m_progress || isBlocked() || !confirmsCancel())
        return false;
    Analytics::send(QString(), u"convert"_s, u"abort"_s, true);
    // The conversion may have ended while the question stood.
    if (const std::shared_ptr<Progress> progress = m_progress)
        progress->cancel();
    return true;
}

void AppDelegate::progressWasCancelled(const std::weak_ptr<Progress> &object)
{
    const std::shared_ptr<Progress> sender = object.lock();
    if (!sender || sender != m_progress)
        return;
    MainQueue::post([self = QPointer(this)] {
        if (self)
            self->setUiState(WindowUIState::InitialState);
    });
    setProgress(nullptr);
}

void AppDelegate::startOverButtonPressed()
{
    Analytics::send(QString(), u"convert"_s, u"convert_another"_s, true);
    setUiState(WindowUIState::InitialState);
}

void AppDelegate::openFolderClick()
{
    if (QFileInfo::exists(m_resultFilePath))
        FileBrowser::reveal(m_resultFilePath);
    else
        FileBrowser::openFolder(Path::stringByDeletingLastPathComponent(m_resultFilePath));
}

QByteArray AppDelegate::lastToolOutput() const
{
    return m_run ? m_run->toolOutput() : QByteArray();
}

bool AppDelegate::mayCloseNow()
{
    const auto runs = [this] { return m_run && !m_run->isEnded(); };
    if (m_uiState == WindowUIState::Converting && m_progress && runs() && !cancelIfConfirmed())
        return false;
    // A run whose bar is full writes its last bytes; a cancelled one removes its output. Both are
    // waited for, but one that never ends must not keep the window for ever.
    if (m_closesAfterRun && runs() && !m_run->isCancelled() && !isBlocked() && confirmsCancel())
        m_run->cancel();
    m_closesAfterRun = runs();
    m_window.setEnabled(!m_closesAfterRun);
    return !m_closesAfterRun;
}

void AppDelegate::stayOpen()
{
    m_closesAfterRun = false;
    m_window.setEnabled(true);
}

void AppDelegate::closeIfAsked()
{
    if (m_closesAfterRun && m_alerts == 0 && m_run && m_run->isEnded())
        m_window.close();
}
