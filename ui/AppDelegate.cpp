// SPDX-License-Identifier: MIT
#include "ui/AppDelegate.h"

#include "analytics/Analytics.h"
#include "engine/FFMPEG.h"
#include "support/Console.h"
#include "support/Localized.h"
#include "support/Path.h"
#include "support/Preferences.h"
#include "support/dialogs/AboutWindow.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Sheets.h"
#include "support/dialogs/Static.h"
#include "ui/Clickable.h"
#include "ui/ConversionStatus.h"
#include "ui_MainWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileOpenEvent>
#include <QMimeData>
#include <QPointer>
#include <QScreen>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr auto fileNamesType = "text/uri-list"_L1;

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
    QFont headingFont = outlets.formatMenu->font();
    headingFont.setBold(true);
    for (QAction *heading :
        { outlets.devicesHeading, outlets.formatsHeading, outlets.mp4QualityHeading })
        heading->setFont(headingFont);
}

void giveRoom(QPushButton *button, int line)
{
    button->setMinimumSize(button->sizeHint() + QSize(line, line / 2));
}

}

AppDelegate::AppDelegate()
    : m_outlets(std::make_unique<Ui::MainWindow>())
{
    // A static library's resources are not there by themselves.
    Q_INIT_RESOURCE(artwork);
    Clickable::installAccessibility();
    m_outlets->setupUi(&m_window);
    m_status = std::make_unique<ConversionStatus>(&m_window, m_outlets->timeLeftLabel);
    keepPlaces(*m_outlets->dropAcceptor);
    styleTexts(*m_outlets);
    const int line = m_window.fontMetrics().height();
    m_window.resize(
        QSize(line * 36, line * 31).boundedTo(m_window.screen()->availableSize() * 0.9));
    giveRoom(m_outlets->startOverButton, line);
    m_outlets->spinner->setSpinColor(m_window.palette().color(QPalette::WindowText));
    Clickable::enable(m_outlets->openFromFolderLabel);
    Clickable::enable(m_outlets->openFolderImageView);
    connectOutlets();
    connectMenus();
    m_window.installEventFilter(this);
    qApp->installEventFilter(this);
}

AppDelegate::~AppDelegate()
{
    setProgress(nullptr);
    // Nobody would see the rest of it.
    if (m_run)
        m_run->cancel();
}

void AppDelegate::setUiState(WindowUIState state)
{
    const WindowUIState former = m_uiState;
    m_uiState = state;
    applyWindowUIState(*m_outlets, state);
    showStateInMenus();
    if (state != former) {
        primaryControl(*m_outlets, state)->setFocus(Qt::OtherFocusReason);
        m_status->stateChanged(former, state);
        // The texts that go with the state are set after it.
        QMetaObject::invokeMethod(this, &AppDelegate::announceState, Qt::QueuedConnection);
    }
    Q_EMIT uiStateChanged(state);
}

void AppDelegate::announceState()
{
    QAccessibleEvent event(spokenOutlet(*m_outlets, m_uiState), QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
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
    m_outlets->cancelAction->setEnabled(m_uiState == WindowUIState::Converting);
    m_outlets->revealAction->setEnabled(m_uiState == WindowUIState::ConversionIsDone);
    m_outlets->startOverAction->setEnabled(m_uiState == WindowUIState::ConversionIsDone);
}

void AppDelegate::connectOutlets()
{
    connect(m_outlets->dropAcceptor, &DropBox::performDragOperation, this,
        &AppDelegate::performDragOperation);
    connect(m_outlets->openFromFolderLabel, &TextField::clicked, this, &AppDelegate::buttonPress);
    connect(
        m_outlets->openFolderImageView, &ImageView::clicked, this, &AppDelegate::openFolderClick);
    connect(m_outlets->cancelProgressImageView, &ImageView::clicked, this,
        &AppDelegate::cancelProgressPressed);
    connect(m_outlets->cancelProgressButton, &QPushButton::clicked, this,
        &AppDelegate::cancelProgressPressed);
    connect(m_outlets->startOverButton, &QPushButton::clicked, this,
        &AppDelegate::startOverButtonPressed);
    connect(m_status.get(), &ConversionStatus::notificationActivated, this, [this] {
        if (m_uiState == WindowUIState::ConversionIsDone)
            openFolderClick();
        else
            applicationShouldHandleReopen(m_window.isVisible());
    });
}

void AppDelegate::connectMenus()
{
    const Ui::MainWindow &outlets = *m_outlets;
    outlets.convertToButton->setMenu(outlets.formatMenu);
    connect(outlets.formatMenu, &QMenu::triggered, this, &AppDelegate::rawFormatMenuItemPressed);
    connect(outlets.openAction, &QAction::triggered, this, &AppDelegate::buttonPress);
    connect(outlets.pasteAction, &QAction::triggered, this, &AppDelegate::paste);
    connect(outlets.cancelAction, &QAction::triggered, this, &AppDelegate::cancelProgressPressed);
    connect(outlets.revealAction, &QAction::triggered, this, &AppDelegate::openFolderClick);
    connect(
        outlets.startOverAction, &QAction::triggered, this, &AppDelegate::startOverButtonPressed);
    connect(outlets.quitAction, &QAction::triggered, &m_window, &QWidget::close);
    connect(outlets.aboutAction, &QAction::triggered, this, &AppDelegate::showAboutWindow);
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
    stayOpen();
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
    if (watched == &m_window && event->type() == QEvent::Close && !mayCloseNow()) {
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

bool AppDelegate::isBlocked() const { return QApplication::activeModalWidget() != nullptr; }

void AppDelegate::takeFiles(const QStringList &paths)
{
    if (isBlocked() || paths.isEmpty() || !allowDragDrop(m_outlets->dropAcceptor))
        return;
    stayOpen();
    Analytics::send(QString(), u"adding_video"_s, u"drag"_s, true);
    processFile(paths.constFirst());
}

void AppDelegate::performDragOperation(const QMimeData *data)
{
    if (const auto paths = fileNames(data))
        takeFiles(*paths);
}

void AppDelegate::paste() { performDragOperation(QApplication::clipboard()->mimeData()); }

void AppDelegate::buttonPress()
{
    if (isBlocked() || !allowDragDrop(m_outlets->dropAcceptor))
        return;
    Analytics::send(QString(), u"adding_video"_s, u"click"_s, true);
    runChooseSheet(&m_window, true, [this](const QString &path) { processFile(path); });
}

void AppDelegate::processFile(const QString &path)
{
    setUiState(WindowUIState::WaitingForCover);
    const QPointer<AppDelegate> self(this);
    const auto isCurrent = [self, probe = ++m_probe] { return self && self->m_probe == probe; };
    FFMPEG::collectMovieInfo(
        path,
        [self, isCurrent] {
            if (isCurrent())
                self->failWithUnsupported();
        },
        [self, isCurrent, path](const JSON &json, const QImage &cover, const QString &duration) {
            if (isCurrent())
                self->fileWasProbed(path, json, cover, duration);
        });
}

void AppDelegate::fileWasProbed(
    const QString &path, const JSON &json, const QImage &cover, const QString &duration)
{
    m_processingInfo = json;
    m_processingFilePath = path;
    m_selectedFileExt = Path::pathExtension(path);
    setUiState(WindowUIState::CoverIsSet);
    m_outlets->movieCoverImageView->setImage(cover);
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
