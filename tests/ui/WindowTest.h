// SPDX-License-Identifier: MIT
#pragma once

#include "engine/FFMPEG.h"
#include "tests/fixtures/Media.h"
#include "tests/fixtures/Processes.h"
#include "tests/fixtures/Rows.h"
#include "tests/fixtures/ToolSwap.h"
#include "ui/window/AppDelegate.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>

class QDialog;

/// The real window with a video beside it, and a user who acts on both with mouse and keyboard.
class WindowTest : public QObject {
    Q_OBJECT

protected:
    /// How the user answers the dialogs that come up, and what they said.
    struct User {
        /// Of the alerts and questions so far.
        QStringList read;
        /// Before a message or a file dialog is answered, or what is dragged is dropped.
        std::function<void()> whileReading = [] {};
        std::function<void()> whileAnswering = [] {};
        std::function<void()> whileDragging = [] {};
        /// Answers questions with Yes; otherwise they get what Return gives.
        bool saysYes = false;
        /// File dialogs so far.
        int sheets = 0;
        /// Names typed into the coming file dialogs, in this order; an empty one stands for what
        /// the dialog proposes. Without one the user presses Escape.
        QStringList names;
        /// What the last save sheet proposed.
        QString proposal;
    };

    QTemporaryDir m_sample;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<AppDelegate> m_delegate;
    std::unique_ptr<ToolSwap> m_swap;
    User m_user;
    QString m_video;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }
    QString url(const QString &name) const { return QUrl::fromLocalFile(path(name)).toString(); }

    template <class View> [[nodiscard]] View *find(const char *name) const
    {
        return m_delegate->window()->findChild<View *>(QLatin1String(name));
    }
    [[nodiscard]] QWidget *view(const char *name) const { return find<QWidget>(name); }
    /// A label's text, without the marks that keep each part in its own direction.
    [[nodiscard]] QString said(const char *name) const
    {
        return find<QLabel>(name)->text().remove(QChar(0x2068)).remove(QChar(0x2069));
    }
    void click(const char *name) const { QTest::mouseClick(view(name), Qt::LeftButton); }
    /// False when the open menu's command can't be clicked.
    static bool clickCommand(QMenu *menu, const QString &title);
    /// Opens the format menu by a click and clicks the item with this title.
    void choose(const QString &title) const;
    /// Drags the addresses, or a text, to the middle of the window and drops them there. Returns
    /// whether the window took them.
    bool drop(const QStringList &addresses) const;
    bool waitFor(WindowUIState state, int milliseconds = 20000) const;
    bool open(const QString &name = QStringLiteral("video.mov")) const;
    /// Opens a video and converts it, until the window has this state, with a tool that follows the
    /// script after it has reported a hundred seconds.
    bool convert(const QByteArray &script, WindowUIState until = WindowUIState::Converting,
        const QString &name = QStringLiteral("video.mov"));

private:
    void look();
    void answer(QDialog *dialog);

    QTimer m_timer;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { FFMPEG::shutDown(); }
};
