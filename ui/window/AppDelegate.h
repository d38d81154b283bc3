// SPDX-License-Identifier: MIT
#pragma once

#include "ui/window/WindowUIState.h"

#include <QImage>
#include <QMainWindow>

#include <memory>

class Announcement;
class ConversionFlow;
class ConversionStatus;
class FileIntake;
class QAction;
class QMimeData;
class StateNotes;
class WindowClosing;
class WindowMemory;
struct Outcome;

namespace Ui {
class MainWindow;
}

/// Owns the window and its state, and connects its controls with intake, conversion and closing.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    using WindowUIState = ::WindowUIState;

    AppDelegate();
    ~AppDelegate() override;
    Q_DISABLE_COPY_MOVE(AppDelegate)

    [[nodiscard]] QMainWindow *window() { return &m_window; }
    [[nodiscard]] WindowUIState uiState() const { return m_uiState; }
    void setUiState(WindowUIState state);
    [[nodiscard]] QString selectedFileExt() const;
    [[nodiscard]] QString processingFilePath() const;
    [[nodiscard]] QString resultFilePath() const;
    [[nodiscard]] QByteArray lastToolOutput() const;

    void applicationDidFinishLaunching();
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    /// Files from anywhere but the open panel; taken only while drops are. Only the first counts.
    void takeFiles(const QStringList &paths);
    void rawFormatMenuItemPressed(QAction *item);

Q_SIGNALS:
    void uiStateChanged(AppDelegate::WindowUIState state);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectOutlets();
    void connectMenus();
    void connectWork();
    void showIntake();
    void showStateInMenus();
    void fileWasExamined(const QImage &cover, const QString &duration);
    void failWithUnsupported();
    void showRefusal(const Outcome &refusal);
    void updateProgress(double fraction, qint64 seconds);
    void cancelProgressPressed();
    void startOverButtonPressed();
    void showAboutWindow();

    QMainWindow m_window;
    std::unique_ptr<Ui::MainWindow> m_outlets;
    Announcement *m_announcement = nullptr;
    std::unique_ptr<ConversionStatus> m_status;
    std::unique_ptr<FileIntake> m_intake;
    std::unique_ptr<ConversionFlow> m_conversion;
    std::unique_ptr<WindowClosing> m_closing;
    std::unique_ptr<WindowMemory> m_memory;
    std::unique_ptr<StateNotes> m_notes;
    QAction *m_chosenEntry = nullptr;
    WindowUIState m_uiState = WindowUIState::InitialState;
    bool m_aboutWindowIsSet = false;
};
