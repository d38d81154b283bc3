// SPDX-License-Identifier: MIT
#pragma once

#include "ui/window/WindowUIState.h"

#include <QObject>

class ConversionFlow;
class FileIntake;
class QImage;
struct Outcome;
struct PlannedWork;

/// What is known of the video and its result, and links to what the user may want next.
/// Made before what changes the state, so that the texts are there in time.
class StateNotes : public QObject {
    Q_OBJECT

public:
    StateNotes(Ui::MainWindow &outlets, FileIntake &intake, ConversionFlow &conversion);

    void stateChanged(WindowUIState state);

private:
    void videoWasExamined(const QImage &cover, const QString &duration);
    void workChanged(const PlannedWork &work, bool isSecondTry);
    void resultIsThere(const Outcome &outcome);
    void conversionFailed(const Outcome &outcome);
    void clearFailure();
    void copyCommand();
    void dragResult() const;

    Ui::MainWindow &m_outlets;
    FileIntake &m_intake;
    ConversionFlow &m_conversion;
    bool m_hasResult = false;
};
