// SPDX-License-Identifier: MIT
#include "ui/window/AppDelegate.h"

#include "analytics/Analytics.h"
#include "engine/Outcome.h"
#include "support/Console.h"
#include "support/Defaults.h"
#include "support/Localized.h"
#include "support/Path.h"
#include "support/Preferences.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Sheets.h"
#include "support/dialogs/Static.h"
#include "ui/widgets/Announcement.h"
#include "ui/window/ConversionStatus.h"
#include "ui/window/FormatEntries.h"
#include "ui/window/StateNotes.h"
#include "ui/window/VideoWords.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDialog>
#include <QFileOpenEvent>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

const QString placeKey = u"WindowPlace"_s;

void enlarge(QLabel *label, double factor)
{
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
}

void dress(const Ui::MainWindow &outlets, int line)
{
    // What is hidden keeps its place, so that nothing jumps; the exceptions share theirs.
    for (QWidget *view : outlets.dropAcceptor->findChildren<QWidget *>()) {
        QSizePolicy policy = view->sizePolicy();
        policy.setRetainSizeWhenHidden(view != outlets.remarksLabel && view != outlets.keptLabel
            && view != outlets.leftOutLabel);
        view->setSizePolicy(policy);
    }
    // The result is dragged out of the picture below.
    outlets.remarksLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    enlarge(outlets.dragFileHereLabel, 1.45);
    enlarge(outlets.movieNameLabel, 1.15);
    for (QLabel *dimmed : std::initializer_list<QLabel *>{ outlets.refusalLabel,
             outlets.movieDurationLabel, outlets.factsLabel, outlets.workLabel })
        dimmed->setForegroundRole(QPalette::PlaceholderText);
    for (QPushButton *button : { outlets.startOverButton, outlets.openResultButton })
        button->setMinimumSize(button->sizeHint() + QSize(line, line / 2));
    for (TextField *link :
        { outlets.openFromFolderLabel, outlets.againLabel, outlets.anotherFormatLabel,
            outlets.logLabel, outlets.copyCommandLabel, outlets.keptLabel }) {
        link->setForegroundRole(QPalette::Link);
        // Room for the ring around the text.
        link->setContentsMargins(line / 3, line / 6, line / 3, line / 6);
    }
}

}

AppDelegate::AppDelegate()
    : m_outlets(std::make_unique<Ui::MainWindow>())
    , m_announcement(new Announcement(&m_window))
{
    // A static library's resources are not there by themselves.
    Q_INIT_RESOURCE(artwork);
    m_outlets->setupUi(&m_window);
    m_status = std::make_unique<ConversionStatus>(&m_window, m_outlets->workLabel);
    const int line = m_window.fontMetrics().height();
    dress(*m_outlets, line);
    FormatEntries::prepare(*m_outlets->formatMenu);
    m_window.resize(
        QSize(line * 36, line * 33).boundedTo(m_window.screen()->availableSize() * 0.9));
    m_window.restoreGeometry(Defaults::value(placeKey).toByteArray());
    m_outlets->spinner->setSpinColor(m_window.palette().color(QPalette::WindowText));
    m_notes = std::make_unique<StateNotes>(*m_outlets, m_intake, m_conversion);
    connectControls();
    connectWork();
    m_window.installEventFilter(this);
    qApp->installEventFilter(this);
}

AppDelegate::~AppDelegate() { Defaults::setValue(placeKey, m_window.saveGeometry()); }

QString AppDelegate::selectedFileExt() const { return Path::pathExtension(processingFilePath()); }

void AppDelegate::setUiState(WindowUIState state)
{
    const WindowUIState former = m_uiState;
    m_uiState = state;
    applyWindowUIState(*m_outlets, state);
    m_intake.setOpen(allowDragDrop(m_outlets->dropAcceptor));
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
}

void AppDelegate::showIntake()
{
    const QString kept = Path::lastPathComponent(m_intake.keptPath());
    // Without a pattern at the start, whose library would be loaded for it.
    if (!kept.isEmpty())
        m_outlets->keptLabel->setText(
            formatted(QT_TRANSLATE_NOOP3("Localizable", "Next: “%@”",
                          "name of a video that came while another one is converted"),
                { kept }));
    m_outlets->keptLabel->setVisible(!kept.isEmpty());
    m_outlets->keptLabel->setEnabled(allowDragDrop(m_outlets->dropAcceptor));
    // A video, a result and a failure stay to be looked at until the user takes the next one.
    if (m_uiState == WindowUIState::InitialState && m_outlets->refusalLabel->text().isEmpty())
        QMetaObject::invokeMethod(&m_intake, &FileIntake::takeKept, Qt::QueuedConnection);
}

void AppDelegate::showStateInMenus()
{
    const Ui::MainWindow &outlets = *m_outlets;
    const bool takesFiles = allowDragDrop(outlets.dropAcceptor);
    outlets.openAction->setEnabled(takesFiles);
    outlets.pasteAction->setEnabled(takesFiles);
    const bool offersFormats = m_uiState == WindowUIState::CoverIsSet;
    outlets.formatMenu->menuAction()->setEnabled(offersFormats);
    // It may stand open for the video before.
    if (!offersFormats)
        outlets.formatMenu->hide();
    const QAction *last = outlets.formatMenu->defaultAction();
    outlets.repeatAction->setEnabled(offersFormats && last && last->isEnabled());
    outlets.cancelAction->setEnabled(
        m_uiState == WindowUIState::Converting || m_uiState == WindowUIState::WaitingForCover);
    outlets.revealAction->setEnabled(m_uiState == WindowUIState::ConversionIsDone);
    outlets.startOverAction->setEnabled(m_uiState == WindowUIState::ConversionIsDone);
}

void AppDelegate::connectControls()
{
    const Ui::MainWindow &outlets = *m_outlets;
    connect(outlets.repeatAction, &QAction::triggered, this,
        [&outlets] { outlets.formatMenu->defaultAction()->trigger(); });
    connect(outlets.openAction, &QAction::triggered, &m_intake, &FileIntake::buttonPress);
    connect(outlets.pasteAction, &QAction::triggered, &m_intake, &FileIntake::paste);
    connect(outlets.cancelAction, &QAction::triggered, this, &AppDelegate::cancelProgressPressed);
    connect(outlets.revealAction, &QAction::triggered, &m_conversion, &ConversionFlow::openFolder);
    connect(outlets.startOverAction, &QAction::triggered, this, [this] {
        Analytics::send(QString(), u"convert"_s, u"convert_another"_s, true);
        setUiState(WindowUIState::InitialState);
    });
    connect(outlets.aboutAction, &QAction::triggered, this, [] {
        QDialog &about = Static::aboutWindow();
        about.show();
        about.raise();
        about.activateWindow();
    });
    outlets.quitAction->setShortcuts({ outlets.quitAction->shortcut(), QKeySequence::Close });
    outlets.convertToButton->setMenu(outlets.formatMenu);
    connect(outlets.formatMenu, &QMenu::triggered, this, &AppDelegate::rawFormatMenuItemPressed);
    connect(outlets.keptLabel, &TextField::clicked, &m_intake, &FileIntake::takeKept);
    connect(outlets.dropAcceptor, &DropBox::performDragOperation, &m_intake,
        &FileIntake::performDragOperation);
    connect(m_status.get(), &ConversionStatus::notificationActivated, this, [this] {
        m_uiState == WindowUIState::ConversionIsDone
            ? m_conversion.openFolder()
            : void(applicationShouldHandleReopen(m_window.isVisible()));
    });
}

void AppDelegate::connectWork()
{
    connect(&m_intake, &FileIntake::started, this, [this](const QString &path) {
        m_outlets->examiningLabel->setText(
            formatted(QT_TRANSLATE_NOOP3("Localizable", "Examining “%@”", "name of a video"),
                { Path::lastPathComponent(path) }));
        m_closing.stayOpen();
        setUiState(WindowUIState::WaitingForCover);
    });
    connect(&m_intake, &FileIntake::kept, this, [this] {
        showIntake();
        m_announcement->say(m_outlets->keptLabel);
        if (m_uiState == WindowUIState::CoverIsSet)
            m_intake.takeKept();
    });
    connect(
        &m_intake, &FileIntake::examined, this, [this] { setUiState(WindowUIState::CoverIsSet); });
    connect(&m_intake, &FileIntake::refused, this, [this](const Outcome &refusal) {
        // Before the state, as a file that waits is not taken while there is something to read.
        m_outlets->refusalLabel->setText(sentenceOf(refusal));
        setUiState(WindowUIState::InitialState);
        displayError(localized(QT_TRANSLATE_NOOP3(
            "Localizable", "Video not supported", "Error message 'Video not supported'")));
        m_announcement->say(m_outlets->refusalLabel);
    });
    connect(&m_conversion, &ConversionFlow::workChanged, m_status.get(),
        [this](const PlannedWork &work) {
            m_status->setWork(
                VideoWords::joined({ m_chosenEntry->iconText(), VideoWords::isDoing(work) }));
        });
    connect(&m_conversion, &ConversionFlow::progressed, this, &AppDelegate::updateProgress);
    connect(&m_conversion, &ConversionFlow::finished, this, [this] {
        rememberSaveFolder(Path::stringByDeletingLastPathComponent(processingFilePath()),
            Path::stringByDeletingLastPathComponent(resultFilePath()));
        setUiState(WindowUIState::ConversionIsDone);
        m_announcement->say(m_outlets->remarksLabel);
        m_status->notify(m_outlets->conversionCompleteStatusLabel->text(),
            Path::lastPathComponent(resultFilePath()));
    });
    connect(&m_conversion, &ConversionFlow::failed, this,
        [this](const Outcome &outcome, const QString &message) {
            if (kindOf(outcome) != OutcomeKind::Incomplete)
                setUiState(WindowUIState::InitialState);
            m_status->notify(m_window.windowTitle(), message);
        });
    connect(&m_conversion, &ConversionFlow::cancelled, this, [this](const Outcome &outcome) {
        if (kindOf(outcome) == OutcomeKind::ToolMissing)
            m_outlets->refusalLabel->setText(sentenceOf(outcome));
        setUiState(WindowUIState::InitialState);
        m_announcement->say(m_outlets->refusalLabel);
    });
    connect(&m_conversion, &ConversionFlow::ended, this, &AppDelegate::showIntake);
}

void AppDelegate::applicationDidFinishLaunching()
{
    Preferences::registerDefaults();
    setUiState(WindowUIState::InitialState);
    m_outlets->dropAcceptor->setAcceptDrops(true);
    Console::print(u"first launch date: "_s + Preferences::firstLaunchDate().toString(Qt::ISODate));
    if (Preferences::isFirstRun()) {
        Preferences::setFirstRun(false);
        Analytics::send(QString(), u"behavior"_s, u"firstrun"_s, true);
    }
}

bool AppDelegate::applicationShouldHandleReopen(bool hasVisibleWindows)
{
    m_closing.stayOpen();
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    m_window.raise();
    QWidget *sheet = QApplication::activeModalWidget();
    if (!hasVisibleWindows)
        (sheet ? sheet : &m_window)->activateWindow();
    return true;
}

bool AppDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_window && event->type() == QEvent::PaletteChange)
        m_outlets->spinner->setSpinColor(m_window.palette().color(QPalette::WindowText));
    if (watched == qApp && event->type() == QEvent::FileOpen) {
        takeFiles({ static_cast<QFileOpenEvent *>(event)->file() });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void AppDelegate::rawFormatMenuItemPressed(QAction *item)
{
    m_chosenEntry = item;
    m_conversion.choose(FormatEntries::constraintsOf(*m_outlets, item));
}

void AppDelegate::updateProgress(double fraction, qint64 seconds)
{
    if (m_uiState != WindowUIState::Converting && m_uiState != WindowUIState::ConversionIsDone) {
        setUiState(WindowUIState::Converting);
        FormatEntries::remember(*m_outlets->formatMenu, *m_chosenEntry);
    }
    m_outlets->progressBar->setFraction(fraction);
    m_status->setProgress(fraction, seconds);
}

void AppDelegate::cancelProgressPressed()
{
    if (m_uiState != WindowUIState::WaitingForCover)
        return void(m_conversion.cancelIfConfirmed());
    m_intake.cancel();
    setUiState(WindowUIState::InitialState);
}
