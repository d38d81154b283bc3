// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

enum class Reason {
    Done,
    // The source
    NoSuchFile,
    IsFolder,
    PermissionDenied,
    NotRegularFile,
    EmptyFile,
    NotMedia,
    NoDuration,
    NoSize,
    TooShort,
    SizeDiffers,
    InfoNotReadable,
    InfoNoJson,
    // The destination
    DestinationExists,
    DestinationNotWritable,
    DestinationIsFolder,
    DestinationLeadsNowhere,
    DestinationIsDevice,
    DestinationIsSource,
    DestinationIsOtherResult,
    FolderMissing,
    FolderIsFile,
    FolderNotWritable,
    // The tool
    ToolMissing,
    ToolFailed,
    ToolKilled,
    ToolSilent,
    ToolStopped,
    NoSpace,
    QuotaExceeded,
    FileTooLarge,
    ReadOnlyDisk,
    AccessDenied,
    NoEncoder,
    NoMuxer,
    FileGone,
    NameTooLong,
    DiskError,
    NoMemory,
    NothingToConvert,
    StreamNotTaken,
    DamagedData,
    // The result
    Incomplete,
    Cancelled,
};

enum class OutcomeKind {
    Done,
    InputRefused,
    DestinationRefused,
    ToolMissing,
    Failed,
    /// The result ends early, and is kept.
    Incomplete,
    Cancelled,
};

struct Outcome {
    Reason reason = Reason::Done;
    /// Fills the sentence: a program's path, an encoder's or muxer's name, or the tool's own words.
    QString detail = {};
    qint64 seconds = 0;

    bool operator==(const Outcome &) const = default;
    [[nodiscard]] bool isDone() const { return reason == Reason::Done; }
};

[[nodiscard]] OutcomeKind kindOf(const Outcome &outcome);
/// One sentence for the user, the same in the window and the command; empty when done.
[[nodiscard]] QString sentenceOf(const Outcome &outcome);
