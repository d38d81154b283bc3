// SPDX-License-Identifier: MIT
#include "ui/window/AppDelegate.h"

#include "analytics/Analytics.h"
#include "engine/Outcome.h"
#include "planning/ConversionDescriptor.h"
#include "planning/VideoConstraints.h"
#include "support/Console.h"
#include "support/Format.h"
#include "support/Localized.h"
#include "support/Path.h"
#include "support/Preferences.h"
#include "support/dialogs/AboutWindow.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Sheets.h"
#include "support/dialogs/Static.h"
#include "ui/widgets/Announcement.h"
#include "ui/widgets/Clickable.h"
#include "ui/window/ConversionFlow.h"
#include "ui/window/ConversionStatus.h"
#include "ui/window/FileIntake.h"
#include "ui/window/FormatEntries.h"
#include "ui/window/StateNotes.h"
#include "ui/window/VideoWords.h"
#include "ui/window/WindowClosing.h"
#include "ui/window/WindowMemory.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileOpenEvent>
#include <QMimeData>
#include <QScreen>
#include <QUrl>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr auto fileNamesType = "text/uri-list"_L1;

/// What is hidden keeps its place, so that nothing jumps when the state changes.
void keepPlaces(const QWidget &area)
{
    for (QWidget *view : area.findChildren<QWidget *>()) {
        QSizePolicy policy = view->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        view->setSizePolicy(policy);
    }
}

void enlarge(QLabel *label, double factor)
{
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
}

void styleTexts(const Ui::MainWindow &outlets)
{
    enlarge(outlets.dragFileHereLabel, 1.45);
    enlarge(outlets.movieNameLabel, 1.15);
    outlets.openFromFolderLabel->setForegroundRole(QPalette::Link);
    outlets.refusalLabel->setForegroundRole(QPalette::PlaceholderText);
    QFont headingFont = outlets.formatMenu->font();
    headingFont.setBold(true);
    for (QAction *heading :
        { outlets.devicesHeading, outlets.formatsHeading, outlets.mp4QualityHeading })
        heading->setFont(headingFont);
}

}

AppDelegate::AppDelegate()
    : m_outlets(std::make_unique<Ui::MainWindow>())
{
    // A static library's resources are not there by themselves.
    Q_INIT_RESOURCE(artwork);
    Clickable::installAccessibility();
    m_outlets->setupUi(&m_window);
    m_announcement = new Announcement(&m_window);
    m_status = std::make_unique<ConversionStatus>(&m_window, m_outlets->workLabel);
    m_intake = std::make_unique<FileIntake>(&m_window);
    m_conversion = std::make_unique<ConversionFlow>(m_window, *m_intake);
    m_closing = std::make_unique<WindowClosing>(m_window, *m_conversion);
    keepPlaces(*m_outlets->dropAcceptor);
    for (QWidget *line : { static_cast<QWidget *>(m_outlets->remarksLabel),
             static_cast<QWidget *>(m_outlets->keptLabel) }) {
        QSizePolicy policy = line->sizePolicy();
        policy.setRetainSizeWhenHidden(false);
        line->setSizePolicy(policy);
    }
    styleTexts(*m_outlets);
    const int line = m_window.fontMetrics().height();
    m_window.resize(
        QSize(line * 36, line * 33).boundedTo(m_window.screen()->availableSize() * 0.9));
    m_memory = std::make_unique<WindowMemory>(m_window, *m_outlets->formatMenu);
    m_outlets->startOverButton->setMinimumSize(
        m_outlets->startOverButton->sizeHint() + QSize(line, line / 2));
    m_outlets->spinner->setSpinColor(m_window.palette().color(QPalette::WindowText));
    Clickable::enable(m_outlets->openFromFolderLabel);
    Clickable::enable(m_outlets->openFolderImageView);
    // Room for the ring around the text.
    m_outlets->openFromFolderLabel->setContentsMargins(line / 2, line / 4, line / 2, line / 4);
    m_notes = std::make_unique<StateNotes>(*m_outlets, *m_intake, *m_conversion);
    connectOutlets();
    connectMenus();
    connectWork();
    m_window.installEventFilter(this);
    qApp->installEventFilter(this);
}

AppDelegate::~AppDelegate() = default;

QString AppDelegate::selectedFileExt() const { return m_intake->selectedFileExt(); }

QString AppDelegate::processingFilePath() const { return m_intake->processingFilePath(); }

QString AppDelegate::resultFilePath() const { return m_conversion->resultFilePath(); }

QByteArray AppDelegate::lastToolOutput() const { return m_conversion->lastToolOutput(); }

void AppDelegate::setUiState(WindowUIState state)
{
    const WindowUIState former = m_uiState;
    m_uiState = state;
    applyWindowUIState(*m_outlets, state);
    m_intake->setOpen(allowDragDrop(m_outlets->dropAcceptor));
    m_notes->stateChanged(state);
    showIntake();
    showStateInMenus();
    if (state != former) {
        primaryControl(*m_outlets, state)->setFocus(Qt::OtherFocusReason);
        m_status->stateChanged(former, state);
        // The texts that go with the state are set after it.
        QMetaObject::invokeMethod(
            this, [this] { m_announcement->say(spokenOutlet(*m_outlets, m_uiState)); },
            Qt::QueuedConnection);
    }
    Q_EMIT uiStateChanged(state);
}

void AppDelegate::showIntake()
{
    const bool examines = m_uiState == WindowUIState::WaitingForCover;
    m_outlets->examiningLabel->setVisible(examines);
    m_outlets->stopExaminingButton->setVisible(examines);
    const QString kept = Path::lastPathComponent(m_intake->keptPath());
    if (!kept.isEmpty())
        m_outlets->keptLabel->setText(
            formatted(QT_TRANSLATE_NOOP3("Localizable", "Next: “%@”",
                          "name of a video that came while another one is converted"),
                { kept }));
    m_outlets->keptLabel->setVisible(!kept.isEmpty() && m_uiState >= WindowUIState::Converting);
    // A result stays to be looked at until the user starts over.
    if (!kept.isEmpty() && m_uiState != WindowUIState::ConversionIsDone)
        QMetaObject::invokeMethod(
            m_intake.get(), [this] { m_intake->takeKept(); }, Qt::QueuedConnection);
}

void AppDelegate::showStateInMenus()
{
    const bool takesFiles = allowDragDrop(m_outlets->dropAcceptor);
    m_outlets->openAction->setEnabled(takesFiles);
    m_outlets->pasteAction->setEnabled(takesFiles);
    const bool offersFormats = m_uiState == WindowUIState::CoverIsSet;
    m_outlets->formatMenu->menuAction()->setEnabled(offersFormats);
    // It may stand open for the video before.
    if (!offersFormats)
        m_outlets->formatMenu->hide();
    m_outlets->repeatAction->setEnabled(offersFormats && m_outlets->formatMenu->defaultAction());
    m_outlets->cancelAction->setEnabled(
        m_uiState == WindowUIState::Converting || m_uiState == WindowUIState::WaitingForCover);
    m_outlets->revealAction->setEnabled(m_uiState == WindowUIState::ConversionIsDone);
    m_outlets->startOverAction->setEnabled(m_uiState == WindowUIState::ConversionIsDone);
}

void AppDelegate::connectOutlets()
{
    connect(m_outlets->dropAcceptor, &DropBox::performDragOperation, m_intake.get(),
        &FileIntake::performDragOperation);
    connect(m_outlets->openFromFolderLabel, &TextField::clicked, m_intake.get(),
        &FileIntake::buttonPress);
    connect(m_outlets->openFolderImageView, &ImageView::clicked, m_conversion.get(),
        &ConversionFlow::openFolder);
    connect(m_outlets->cancelProgressImageView, &ImageView::clicked, this,
        &AppDelegate::cancelProgressPressed);
    connect(m_outlets->cancelProgressButton, &QPushButton::clicked, this,
        &AppDelegate::cancelProgressPressed);
    connect(
        m_outlets->stopExaminingButton, &QPushButton::clicked, m_intake.get(), &FileIntake::cancel);
    connect(m_outlets->startOverButton, &QPushButton::clicked, this,
        &AppDelegate::startOverButtonPressed);
    connect(m_status.get(), &ConversionStatus::notificationActivated, this, [this] {
        if (m_uiState == WindowUIState::ConversionIsDone)
            m_conversion->openFolder();
        else
            applicationShouldHandleReopen(m_window.isVisible());
    });
}

void AppDelegate::connectMenus()
{
    const Ui::MainWindow &outlets = *m_outlets;
    outlets.convertToButton->setMenu(outlets.formatMenu);
    connect(outlets.formatMenu, &QMenu::triggered, this, &AppDelegate::rawFormatMenuItemPressed);
    connect(outlets.repeatAction, &QAction::triggered, this,
        [&outlets] { outlets.formatMenu->defaultAction()->trigger(); });
    connect(outlets.openAction, &QAction::triggered, m_intake.get(), &FileIntake::buttonPress);
    connect(outlets.pasteAction, &QAction::triggered, m_intake.get(), &FileIntake::paste);
    connect(outlets.cancelAction, &QAction::triggered, this, &AppDelegate::cancelProgressPressed);
    connect(
        outlets.revealAction, &QAction::triggered, m_conversion.get(), &ConversionFlow::openFolder);
    connect(
        outlets.startOverAction, &QAction::triggered, this, &AppDelegate::startOverButtonPressed);
    outlets.quitAction->setShortcuts({ outlets.quitAction->shortcut(), QKeySequence::Close });
    connect(outlets.quitAction, &QAction::triggered, &m_window, &QWidget::close);
    connect(outlets.aboutAction, &QAction::triggered, this, &AppDelegate::showAboutWindow);
}

void AppDelegate::connectWork()
{
    connect(m_intake.get(), &FileIntake::started, this, [this](const QString &path) {
        m_outlets->examiningLabel->setText(
            formatted(QT_TRANSLATE_NOOP3("Localizable", "Examining “%@”", "name of a video"),
                { Path::lastPathComponent(path) }));
        m_closing->stayOpen();
        setUiState(WindowUIState::WaitingForCover);
    });
    connect(m_intake.get(), &FileIntake::cancelled, this,
        [this] { setUiState(WindowUIState::InitialState); });
    connect(m_intake.get(), &FileIntake::kept, this, [this] {
        showIntake();
        m_announcement->say(m_outlets->keptLabel);
    });
    connect(m_intake.get(), &FileIntake::examined, this, &AppDelegate::fileWasExamined);
    connect(m_intake.get(), &FileIntake::refused, this, [this](const Outcome &refusal) {
        failWithUnsupported();
        showRefusal(refusal);
        showIntake();
    });
    connect(m_conversion.get(), &ConversionFlow::workChanged, m_status.get(),
        [this](const PlannedWork &work) { m_status->setWork(VideoWords::isDoing(work)); });
    connect(m_conversion.get(), &ConversionFlow::progressed, this, &AppDelegate::updateProgress);
    connect(m_conversion.get(), &ConversionFlow::finished, this, [this] {
        rememberSaveFolder(Path::stringByDeletingLastPathComponent(processingFilePath()),
            Path::stringByDeletingLastPathComponent(resultFilePath()));
        setUiState(WindowUIState::ConversionIsDone);
        if (!m_outlets->remarksLabel->text().isEmpty())
            m_announcement->say(m_outlets->remarksLabel);
        m_status->notify(m_outlets->conversionCompleteStatusLabel->text(),
            Path::lastPathComponent(resultFilePath()));
    });
    connect(m_conversion.get(), &ConversionFlow::failed, this,
        [this](const Outcome &outcome, const QString &message) {
            if (kindOf(outcome) != OutcomeKind::Incomplete)
                setUiState(WindowUIState::InitialState);
            m_status->notify(m_window.windowTitle(), message);
        });
    connect(m_conversion.get(), &ConversionFlow::cancelled, this, [this](const Outcome &outcome) {
        setUiState(WindowUIState::InitialState);
        if (kindOf(outcome) == OutcomeKind::ToolMissing)
            showRefusal(outcome);
    });
    connect(m_conversion.get(), &ConversionFlow::ended, this, [this] {
        m_closing->closeIfAsked();
        showIntake();
    });
}

void AppDelegate::applicationDidFinishLaunching()
{
    Preferences::registerDefaults();
    setUiState(WindowUIState::InitialState);
    m_outlets->dropAcceptor->registerForDraggedTypes({ fileNamesType });
    m_outlets->movieCoverImageView->setAcceptDrops(false);
    m_outlets->dragDropImageView->setAcceptDrops(false);
    Console::print(u"first launch date: "_s + Preferences::firstLaunchDate().toString(Qt::ISODate));
    if (Preferences::isFirstRun()) {
        Preferences::setFirstRun(false);
        Analytics::send(QString(), u"behavior"_s, u"firstrun"_s, true);
    }
}

bool AppDelegate::applicationShouldHandleReopen(bool hasVisibleWindows)
{
    m_closing->stayOpen();
    if (!hasVisibleWindows || m_window.isMinimized())
        m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    if (!hasVisibleWindows)
        m_window.activateWindow();
    m_window.raise();
    return true;
}

bool AppDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_window && event->type() == QEvent::Close && !m_closing->mayCloseNow()) {
        event->ignore();
        return true;
    }
    if (watched == &m_window && event->type() == QEvent::PaletteChange)
        m_outlets->spinner->setSpinColor(m_window.palette().color(QPalette::WindowText));
    if (watched == qApp && event->type() == QEvent::FileOpen) {
        takeFiles({ static_cast<QFileOpenEvent *>(event)->file() });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void AppDelegate::takeFiles(const QStringList &paths) { m_intake->takeFiles(paths); }

void AppDelegate::fileWasExamined(const QImage &cover, const QString &duration)
{
    const QString &path = m_intake->processingFilePath();
    setUiState(WindowUIState::CoverIsSet);
    m_outlets->movieCoverImageView->setImage(cover);
    const bool hasPicture = conversionDescriptor(ConversionFormat::mkv)
                                .videoStream(*m_intake->processingInfo())
                                .has_value();
    m_outlets->movieCoverImageView->setArtwork(hasPicture ? QString() : u":/artwork/note.svg"_s);
    m_outlets->movieNameLabel->setText(Path::lastPathComponent(path));
    // A tool tip guesses whether it is mark-up; a file's name is none.
    m_outlets->movieNameLabel->setToolTip(u"<span>"_s + path.toHtmlEscaped() + u"</span>"_s);
    m_outlets->movieNameLabel->setAccessibleDescription(path);
    m_outlets->movieDurationLabel->setText(duration);
}

void AppDelegate::failWithUnsupported()
{
    setUiState(WindowUIState::InitialState);
    displayError(localized(QT_TRANSLATE_NOOP3(
        "Localizable", "Video not supported", "Error message 'Video not supported'")));
}

void AppDelegate::showRefusal(const Outcome &refusal)
{
    if (m_uiState != WindowUIState::InitialState)
        return;
    m_outlets->refusalLabel->setText(sentenceOf(refusal));
    m_notes->stateChanged(m_uiState);
    m_announcement->say(m_outlets->refusalLabel);
}

void AppDelegate::rawFormatMenuItemPressed(QAction *item)
{
    m_chosenEntry = item;
    m_conversion->choose(FormatEntries::constraintsOf(*m_outlets, item));
}

void AppDelegate::updateProgress(double fraction, qint64 seconds)
{
    if (m_uiState != WindowUIState::Converting && m_uiState != WindowUIState::ConversionIsDone) {
        setUiState(WindowUIState::Converting);
        m_memory->entryWasUsed(m_chosenEntry);
    }
    m_outlets->progressBar->setBusy(fraction < 0);
    m_outlets->progressBar->setDoubleValue(std::max(fraction, 0.0));
    m_status->setProgress(fraction, seconds);
}

void AppDelegate::cancelProgressPressed()
{
    if (m_uiState == WindowUIState::WaitingForCover)
        m_intake->cancel();
    else
        std::ignore = m_conversion->cancelIfConfirmed();
}

void AppDelegate::startOverButtonPressed()
{
    Analytics::send(QString(), u"convert"_s, u"convert_another"_s, true);
    setUiState(WindowUIState::InitialState);
}

void AppDelegate::showAboutWindow()
{
    AboutWindow &about = Static::aboutWindow();
    if (!m_aboutWindowIsSet) {
        m_aboutWindowIsSet = true;
        about.setCredits({});
        about.setOpenWebsiteHandler([] {
            const QUrl site(Static::applicationURL());
            if (site.isValid())
                QDesktopServices::openUrl(site);
        });
    }
    about.showWindow();
}
