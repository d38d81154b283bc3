// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The staged files that exist, in the user's data folder: one entry each, a file that holds its
/// path and that its owner keeps locked. So the next start finds what a killed program left.
/// Errors: without such a folder nothing is listed.
namespace StagedList {

/// One program's entry for one staged file. Thread: one at a time.
class Entry {
public:
    Entry() = default;
    ~Entry() { remove(); }
    Q_DISABLE_COPY_MOVE(Entry)

    void add(const QString &stagedPath);
    void remove();
    /// To a later start, which may be able to remove the staged file.
    void leave();

private:
    QString m_path;
    int m_file = -1;
};

/// The staged file that an entry names; empty for anything that is no entry.
[[nodiscard]] QString stagedPathOf(const QByteArray &entry);
/// Removes the staged files that nobody holds. Thread: any.
void removeAbandoned();

}
