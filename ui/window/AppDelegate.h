// SPDX-License-Identifier: MIT
#pragma once

#include "ui/window/ConversionFlow.h"
#include "ui/window/FileIntake.h"
#include "ui/window/WindowClosing.h"
#include "ui/window/WindowUIState.h"

class Announcement;
class ConversionStatus;
class QAction;
class StateNotes;

namespace Ui {
class MainWindow;
}

/// Owns the window and its state, and connects its controls with intake and conversion.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    using WindowUIState = ::WindowUIState;

    AppDelegate();
    ~AppDelegate() override;

    [[nodiscard]] QMainWindow *window() { return &m_window; }
    [[nodiscard]] WindowUIState uiState() const { return m_uiState; }
    void setUiState(WindowUIState state);
    [[nodiscard]] QString selectedFileExt() const;
    [[nodiscard]] QString processingFilePath() const { return m_intake.processingFilePath(); }
    [[nodiscard]] QString resultFilePath() const { return m_conversion.resultFilePath(); }
    [[nodiscard]] QByteArray lastToolOutput() const { return m_conversion.lastToolOutput(); }

    void applicationDidFinishLaunching();
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    /// Files from anywhere but drops and the open panel. Those that can't be taken now wait.
    void takeFiles(const QStringList &paths) { m_intake.takeFiles(paths); }
    void rawFormatMenuItemPressed(QAction *item);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectControls();
    void connectWork();
    void showIntake();
    void showStateInMenus();
    void updateProgress(double fraction, qint64 seconds);
    void cancelProgressPressed();

    QMainWindow m_window;
    std::unique_ptr<Ui::MainWindow> m_outlets;
    Announcement *m_announcement;
    std::unique_ptr<ConversionStatus> m_status;
    FileIntake m_intake{ &m_window };
    ConversionFlow m_conversion{ m_window, m_intake };
    WindowClosing m_closing{ m_window, m_conversion };
    std::unique_ptr<StateNotes> m_notes;
    QAction *m_chosenEntry = nullptr;
    WindowUIState m_uiState = WindowUIState::InitialState;
};
