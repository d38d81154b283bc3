// SPDX-License-Identifier: MIT
#pragma once

#include "ui/window/WindowUIState.h"

#include <QMainWindow>

#include <memory>

class Announcement;
class ConversionFlow;
class ConversionStatus;
class FileIntake;
class QAction;
class StateNotes;
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectControls();
    void connectWork();
    void showIntake();
    void showStateInMenus();
    void showRefusal(const Outcome &refusal);
    void updateProgress(double fraction, qint64 seconds);
    void cancelProgressPressed();

    QMainWindow m_window;
    std::unique_ptr<Ui::MainWindow> m_outlets;
    Announcement *m_announcement = nullptr;
    std::unique_ptr<ConversionStatus> m_status;
    std::unique_ptr<FileIntake> m_intake;
    std::unique_ptr<ConversionFlow> m_conversion;
    std::unique_ptr<StateNotes> m_notes;
    QAction *m_chosenEntry = nullptr;
    WindowUIState m_uiState = WindowUIState::InitialState;
};
