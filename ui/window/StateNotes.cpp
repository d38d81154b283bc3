// SPDX-License-Identifier: MIT
#include "ui/window/StateNotes.h"

#include "engine/Outcome.h"
#include "planning/ConversionDescriptor.h"
#include "planning/PlannedWork.h"
#include "support/DurationInfo.h"
#include "support/Localized.h"
#include "support/Path.h"
#include "support/Text.h"
#include "support/dialogs/Alerts.h"
#include "support/dialogs/Sheets.h"
#include "ui/window/ConversionFlow.h"
#include "ui/window/FileIntake.h"
#include "ui/window/FormatEntries.h"
#include "ui/window/VideoWords.h"
#include "ui_MainWindow.h"

#include <QClipboard>
#include <QDrag>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A tool tip guesses whether it is mark-up; a file's name is none.
QString toolTipOf(const QString &path) { return u"<span>"_s + path.toHtmlEscaped() + u"</span>"_s; }

}

StateNotes::StateNotes(Ui::MainWindow &outlets, FileIntake &intake, ConversionFlow &conversion)
    : m_outlets(outlets)
    , m_intake(intake)
    , m_conversion(conversion)
{
    connect(m_outlets.againLabel, &TextField::clicked, &m_intake,
        [this] { m_intake.processFile(m_intake.processingFilePath()); });
    connect(m_outlets.anotherFormatLabel, &TextField::clicked, &m_intake, &FileIntake::takeAgain);
    connect(m_outlets.logLabel, &TextField::clicked, this,
        [this] { showLog(m_outlets.logLabel->window(), m_conversion.lastToolOutput()); });
    connect(m_outlets.copyCommandLabel, &TextField::clicked, this, &StateNotes::copyCommand);
    connect(m_outlets.movieCoverImageView, &ImageView::dragged, this, &StateNotes::dragResult);
    connect(m_outlets.openResultButton, &QPushButton::clicked, &m_conversion,
        &ConversionFlow::openResult);
    // The marks have the colours of the moment.
    connect(m_outlets.formatMenu, &QMenu::aboutToShow, this, [this] {
        if (const auto &info = m_intake.processingInfo())
            FormatEntries::mark(m_outlets, *info);
    });
    connect(&m_intake, &FileIntake::started, this, &StateNotes::clearFailure);
    connect(&m_intake, &FileIntake::examined, this, &StateNotes::videoWasExamined);
    connect(&m_conversion, &ConversionFlow::workChanged, this, &StateNotes::workChanged);
    connect(&m_conversion, &ConversionFlow::finished, this, &StateNotes::resultIsThere);
    connect(&m_conversion, &ConversionFlow::failed, this, &StateNotes::conversionFailed);
}

void StateNotes::stateChanged(WindowUIState state)
{
    m_hasResult = state == WindowUIState::ConversionIsDone;
    m_outlets.movieCoverImageView->setToolTip(m_hasResult
            ? localized(QT_TRANSLATE_NOOP3("Localizable",
                "Drag the result from here into a folder or a mail", "tool tip of the picture"))
            : QString());
    m_outlets.movieCoverImageView->setCursor(m_hasResult ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void StateNotes::videoWasExamined(const QImage &cover, const QString &duration)
{
    clearFailure();
    const QString &path = m_intake.processingFilePath();
    m_outlets.movieCoverImageView->setImage(cover);
    m_outlets.movieNameLabel->setText(Path::lastPathComponent(path));
    m_outlets.movieNameLabel->setToolTip(toolTipOf(path));
    m_outlets.movieNameLabel->setAccessibleDescription(path);
    m_outlets.movieDurationLabel->setText(duration);
    const JSON &info = *m_intake.processingInfo();
    FormatEntries::mark(m_outlets, info);
    // The note stands for sound only, not for a picture that can't be had.
    m_outlets.movieCoverImageView->setArtwork(
        firstStream(info, "video"_L1) ? QString() : u":/artwork/note.svg"_s);
    m_outlets.factsLabel->setText(VideoWords::factsOf(info));
    m_outlets.factsLabel->setToolTip(m_outlets.factsLabel->text());
    m_outlets.againLabel->setText(formatted(
        QT_TRANSLATE_NOOP3("Localizable", "Open “%@” again", "with the name of the last video"),
        { Path::lastPathComponent(path) }));
    const qint64 others = m_intake.leftOut().size();
    m_outlets.leftOutLabel->clear();
    m_outlets.copyCommandLabel->clear();
    if (others == 0)
        return;
    m_outlets.leftOutLabel->setText(formatted(
        QT_TRANSLATE_NOOP3("Localizable", "One video is converted at a time here. Left out: %d",
            "several videos were dropped, with the number of the others"),
        { others }));
    m_outlets.copyCommandLabel->setText(localized(QT_TRANSLATE_NOOP3(
        "Localizable", "Copy command", "copies a command line that converts several videos")));
}

void StateNotes::workChanged(const PlannedWork &, bool isSecondTry)
{
    m_outlets.secondTryLabel->setText(isSecondTry
            ? localized(QT_TRANSLATE_NOOP3("Localizable",
                "Second try, in another way: the first one could not work.", "while converting"))
            : QString());
    m_outlets.secondTryLabel->setVisible(isSecondTry);
}

void StateNotes::resultIsThere(const Outcome &outcome)
{
    QStringList remarks = remarksOn(outcome);
    if (!outcome.isDone())
        remarks.prepend(sentenceOf(outcome));
    m_outlets.remarksLabel->setText(remarks.join(u'\n'));
    const QString length = outcome.reason == Reason::Incomplete
        ? DurationInfo(outcome.seconds).toString()
        : m_outlets.movieDurationLabel->text();
    const QString path = m_conversion.resultFilePath();
    m_outlets.resultLabel->setText(VideoWords::resultLine(path, length));
    m_outlets.resultLabel->setToolTip(toolTipOf(path));
}

void StateNotes::conversionFailed(const Outcome &outcome)
{
    if (kindOf(outcome) == OutcomeKind::Incomplete)
        return;
    m_outlets.refusalLabel->setText(sentenceOf(outcome));
    m_outlets.anotherFormatLabel->setText(localized(
        QT_TRANSLATE_NOOP3("Localizable", "Try another format", "after a conversion that failed")));
    if (!m_conversion.lastToolOutput().isEmpty())
        m_outlets.logLabel->setText(localized(QT_TRANSLATE_NOOP3(
            "Localizable", "Show the log", "what the tool said in a conversion that failed")));
}

void StateNotes::clearFailure()
{
    m_outlets.refusalLabel->clear();
    m_outlets.logLabel->clear();
    m_outlets.anotherFormatLabel->clear();
}

void StateNotes::copyCommand()
{
    const QString &path = m_intake.processingFilePath();
    const QAction *last = m_outlets.formatMenu->defaultAction();
    const auto entry = FormatEntries::constraintsOf(m_outlets, last ? last : m_outlets.mP4MenuItem);
    const QString ext = conversionDescriptor(entry->format).ext;
    const QStringList videos = QStringList(path) + m_intake.leftOut();
    QString folder = saveFolder(Path::stringByDeletingLastPathComponent(path));
    QString command;
    // No video can be its own result.
    if (std::ranges::find(videos, ext, &Path::pathExtension) != videos.end()) {
        folder = Path::stringByAppendingPathComponent(folder, ext);
        command = Text::shellQuoted({ u"mkdir"_s, u"-p"_s, folder }) + u" && "_s;
    }
    const QStringList words{ u"video-converter-cli"_s, u"convert"_s, u"--to"_s, entry->destDevice,
        u"-j"_s, u"0"_s, u"-d"_s, folder, u"--"_s };
    QGuiApplication::clipboard()->setText(command + Text::shellQuoted(words + videos));
    m_outlets.copyCommandLabel->setText(localized(
        QT_TRANSLATE_NOOP3("Localizable", "Copied", "a command line is on the clipboard now")));
}

void StateNotes::dragResult() const
{
    const QFileInfo result(m_conversion.resultFilePath());
    if (!m_hasResult || !result.exists())
        return;
    constexpr int thumbnailLines = 6;
    ImageView *picture = m_outlets.movieCoverImageView;
    auto *data = new QMimeData;
    data->setUrls({ QUrl::fromLocalFile(result.absoluteFilePath()) });
    auto *drag = new QDrag(picture);
    drag->setMimeData(data);
    if (!picture->image().isNull())
        drag->setPixmap(QPixmap::fromImage(picture->image().scaledToHeight(
            picture->fontMetrics().height() * thumbnailLines, Qt::SmoothTransformation)));
    drag->exec(Qt::CopyAction);
}
