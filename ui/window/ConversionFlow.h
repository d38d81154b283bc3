// SPDX-License-Identifier: MIT
#pragma once

#include "engine/ConversionRun.h"
#include "engine/Progress.h"
#include "planning/VideoConstraints.h"

#include <QMainWindow>

#include <array>
#include <memory>
#include <optional>

class FileIntake;
struct PlannedWork;

/// Leads from the choice of an output to its result.
class ConversionFlow : public QObject {
    Q_OBJECT

public:
    ConversionFlow(QMainWindow &window, const FileIntake &intake);
    ~ConversionFlow() override;

    void choose(const std::optional<VideoConstraints> &constraints);
    /// Asks, then cancels what is shown, if anything. False when it is to go on.
    bool cancelIfConfirmed();
    /// A tool runs, also while it writes its last bytes or its partial result is removed.
    [[nodiscard]] bool isRunning() const { return m_run && !m_run->isEnded(); }
    void openFolder() const;
    void openResult() const;

    [[nodiscard]] const QString &resultFilePath() const { return m_resultFilePath; }
    [[nodiscard]] QByteArray lastToolOutput() const
    {
        return m_run ? m_run->toolOutput() : QByteArray();
    }

Q_SIGNALS:
    /// What the tool is started for; a second time where the first try could not work.
    void workChanged(const PlannedWork &work, bool isSecondTry);
    /// A fraction of 0 to 1, negative while the length is unknown; seconds of the video.
    void progressed(double fraction, qint64 seconds);
    /// The result is in place; it may end early.
    void finished(const Outcome &outcome);
    /// Emitted before the alert is shown.
    void failed(const Outcome &outcome, const QString &message);
    void cancelled(const Outcome &outcome);
    /// The tool is gone and its failure, if any, has been read.
    void ended();

private:
    void startConversion(const QString &destPath, const VideoConstraints &constraints);
    void setProgress(std::shared_ptr<Progress> progress);
    void updateProgress();
    void announceWork(Remedy remedy);
    void progressWasCancelled();
    void failWhileConverting(const std::optional<QString> &errmsg);
    void end();

    QMainWindow &m_window;
    const FileIntake &m_intake;
    QString m_resultFilePath;
    std::optional<ConversionJob> m_job;
    Remedy m_remedy = Remedy::None;
    static constexpr std::array overalProgressObservedKeys{ Progress::Key::FractionCompleted,
        Progress::Key::CompletedUnitCount };
    std::shared_ptr<Progress> m_progress;
    /// The last conversion, also after its bar is full: the tool may still write the last bytes.
    std::shared_ptr<Progress> m_run;
    int m_alerts = 0;
};
