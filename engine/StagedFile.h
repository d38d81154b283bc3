// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"
#include "engine/StagedList.h"

#include <optional>

class Progress;

/// A hidden file beside a result's place. A run writes it; once it is good, it takes the place in
/// one step, so that nobody opens half a file and an older one outlives everything but success. Its
/// owner holds a lock on it. Thread: one at a time.
class StagedFile {
public:
    /// `destPath` leads through no link.
    explicit StagedFile(QString destPath);
    ~StagedFile();
    Q_DISABLE_COPY_MOVE(StagedFile)

    /// Creates an empty file in place of an earlier one. Errors: why nothing can be written there.
    [[nodiscard]] std::optional<Outcome> create();
    [[nodiscard]] const QString &path() const { return m_path; }
    /// Puts the file in its place. What stands there is replaced only when `overwrite` is set; it
    /// gives its permissions, and with `keptPath` goes on as "NAME (earlier).ext", a path that is
    /// written there; unless it has the same bytes. A cancelled `progress` spares it.
    [[nodiscard]] std::optional<Outcome> moveIntoPlace(
        bool overwrite, const Progress &progress, QString *keptPath = nullptr);

private:
    void drop();
    void close();

    QString m_destPath;
    QString m_path;
    StagedList::Entry m_entry;
    int m_file = -1;
};
