// SPDX-License-Identifier: MIT
#pragma once

#include "support/JSON.h"

#include <QImage>
#include <QObject>
#include <QStringList>

#include <optional>

class QWidget;
struct Outcome;

/// Takes one file in, from wherever it comes, and has it examined.
class FileIntake : public QObject {
    Q_OBJECT

public:
    explicit FileIntake(QWidget *window)
        : m_window(window)
    {
    }

    /// Files are taken only while this is set; further ones of several are left out.
    void setOpen(bool open) { m_isOpen = open; }
    /// Takes the first of them. While no file can be taken, all are kept.
    void takeFiles(const QStringList &paths);
    /// Takes the first one that was kept, after the sheet that is open now.
    void takeKept();
    [[nodiscard]] QString keptPath() const { return m_kept.value(0); }
    void performDragOperation(const QStringList &paths);
    void paste();
    void buttonPress();
    void processFile(const QString &path);
    /// Takes the file that was examined last without examining it again.
    void takeAgain();
    /// No answer comes about the file that is being examined.
    void cancel() { ++m_count; }

    /// The file that was examined last, with what the tool says about it.
    [[nodiscard]] const QString &processingFilePath() const { return m_processingFilePath; }
    [[nodiscard]] const std::optional<JSON> &processingInfo() const { return m_processingInfo; }
    /// What came together with that file.
    [[nodiscard]] const QStringList &leftOut() const { return m_leftOut; }

Q_SIGNALS:
    void started(const QString &path);
    void kept();
    void examined(const QImage &cover, const QString &duration);
    void refused(const Outcome &refusal);

private:
    [[nodiscard]] bool isReady() const;

    QWidget *m_window;
    bool m_isOpen = false;
    QStringList m_kept;
    QString m_processingFilePath;
    std::optional<JSON> m_processingInfo;
    QStringList m_leftOut;
    QImage m_cover;
    QString m_duration;
    /// Of examinations; an answer about an earlier file bears another number.
    int m_count = 0;
};
