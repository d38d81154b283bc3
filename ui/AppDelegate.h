// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Progress.h"
#include "planning/VideoConstraints.h"
#include "support/JSON.h"
#include "ui/WindowUIState.h"

#include <QMainWindow>
#include <QObject>

#include <array>
#include <memory>
#include <optional>

class ConversionStatus;
class QAction;
class QMimeData;

namespace Ui {
class MainWindow;
}

/// Owns the single window and drives everything: takes files in, has them examined and converted,
/// and shows how far that is. Thread: main.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    using WindowUIState = ::WindowUIState;

    AppDelegate();
    ~AppDelegate() override;
    Q_DISABLE_COPY_MOVE(AppDelegate)

    [[nodiscard]] QMainWindow *window() { return &m_window; }
    [[nodiscard]] WindowUIState uiState() const { return m_uiState; }
    /// Every assignment makes the whole window anew.
    void setUiState(WindowUIState state);
    [[nodiscard]] const QString &selectedFileExt() const { return m_selectedFileExt; }
    [[nodiscard]] const QString &processingFilePath() const { return m_processingFilePath; }
    [[nodiscard]] const QString &resultFilePath() const { return m_resultFilePath; }
    [[nodiscard]] const std::optional<JSON> &processingInfo() const { return m_processingInfo; }
    /// Everything that the tool of the last conversion printed.
    [[nodiscard]] QByteArray lastToolOutput() const;

    void applicationDidFinishLaunching();
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    /// Files that came from anywhere but the open panel; taken only while drops are. Only the first
    /// counts.
    void takeFiles(const QStringList &paths);
    void performDragOperation(const QMimeData *data);
    void buttonPress();
    void rawFormatMenuItemPressed(const QAction *item);
    void cancelProgressPressed();
    void startOverButtonPressed();
    void openFolderClick();
    void showAboutWindow();

Q_SIGNALS:
    void uiStateChanged(AppDelegate::WindowUIState state);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectOutlets();
    void connectMenus();
    void showStateInMenus();
    void announceState();
    [[nodiscard]] bool isBlocked() const;
    void paste();

    void processFile(const QString &path);
    void fileWasProbed(
        const QString &path, const JSON &json, const QImage &cover, const QString &duration);
    void failWithUnsupported();

    struct Choice;
    void askForDestination(const Choice &choice);
    void destinationWasChosen(const Choice &choice, const QString &destPath);
    void startConversion(const QString &destPath, const VideoConstraints &constraints);
    void setProgress(std::shared_ptr<Progress> progress);
    void observeValueForKeyPath(Progress::Context context, const std::weak_ptr<Progress> &object);
    void updateProgress();
    void progressWasCancelled(const std::weak_ptr<Progress> &object);
    void failWhileConverting(const std::optional<QString> &errmsg);
    void tellFailure(const QString &path, const std::optional<QString> &errmsg);
    [[nodiscard]] bool cancelIfConfirmed();

    [[nodiscard]] bool mayCloseNow();
    void stayOpen();
    void closeIfAsked();

    QMainWindow m_window;
    std::unique_ptr<Ui::MainWindow> m_outlets;
    std::unique_ptr<ConversionStatus> m_status;
    WindowUIState m_uiState = WindowUIState::InitialState;
    QString m_selectedFileExt;
    QString m_processingFilePath;
    QString m_resultFilePath;
    std::optional<JSON> m_processingInfo;
    /// Its address marks this controller's observers.
    int m_convertObservationContext = 0;
    static constexpr std::array overalProgressObservedKeys{ Progress::Key::FractionCompleted,
        Progress::Key::CompletedUnitCount };
    std::shared_ptr<Progress> m_progress;
    /// The last conversion, also after its bar is full: the tool may still write the last bytes.
    std::shared_ptr<Progress> m_run;
    /// Counts the files taken in, so that an answer about an earlier one is known as such.
    int m_probe = 0;
    int m_alerts = 0;
    bool m_closesAfterRun = false;
    bool m_aboutWindowIsSet = false;
};
