// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

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
    NameNotText,
    SizeDiffers,
    InfoNotReadable,
    ListNotReadable,
    TreeNotReadable,
    InfoNoJson,
    // The destination
    DestinationExists,
    DestinationNotWritable,
    DestinationNameNotText,
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
    ToolUnusable,
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
    LimitMet,
    NothingToConvert,
    StreamNotTaken,
    DamagedData,
    // The result
    Incomplete,
    PictureMissing,
    SoundMissing,
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

/// What a further try does differently when the one before could not work.
enum class Remedy { None, CoverLeftOut, SizeMadeEven, SoundEncoded, PictureEncoded };

struct Outcome {
    Reason reason = Reason::Done;
    /// Fills the sentence: a program's path, an encoder's or muxer's name, or the tool's own words.
    QString detail = {};
    qint64 seconds = 0;
    /// What further tries did differently, in their order.
    QList<Remedy> remedies = {};
    /// Places of the source where the tool met errors and went on, and the second of the first.
    int damagedPlaces = 0;
    std::optional<qint64> firstDamage = {};
    /// The name under which an older file of the result's name was kept.
    QString olderPath = {};

    bool operator==(const Outcome &) const = default;
    [[nodiscard]] bool isDone() const { return reason == Reason::Done; }
};

[[nodiscard]] OutcomeKind kindOf(const Outcome &outcome);
/// The reason as a word for programs, such as "destination-exists". Such words never change.
[[nodiscard]] QLatin1StringView nameOf(const Outcome &outcome);
[[nodiscard]] QLatin1StringView nameOf(Remedy remedy);
/// A failure that the video's own streams may have caused, not the computer.
[[nodiscard]] bool mayBeTheVideos(const Outcome &failure);
/// One sentence for the user, the same in the window and the command; empty when done.
[[nodiscard]] QString sentenceOf(const Outcome &outcome);
/// What else is to be said of a result: further tries, damage of the source, an older file kept.
[[nodiscard]] QStringList remarksOn(const Outcome &outcome);
