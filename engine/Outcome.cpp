// SPDX-License-Identifier: MIT
#include "engine/Outcome.h"

#include "support/DurationInfo.h"
#include "support/Format.h"
#include "support/Localized.h"

#include <array>

namespace {

struct ReasonRow {
    Reason reason;
    OutcomeKind kind;
    /// %@ stands for the detail.
    LocalizedText sentence;
};

// clang-format off
constexpr std::array reasonRows {
    ReasonRow { Reason::Done, OutcomeKind::Done, { "", "" } },

    ReasonRow { Reason::NoSuchFile, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "There is no such file.", "Why a video can't be converted") },
    ReasonRow { Reason::IsFolder, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "This is a folder, not a video.", "Why a video can't be converted") },
    ReasonRow { Reason::PermissionDenied, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The file may not be read: permission denied.", "Why a video can't be converted") },
    ReasonRow { Reason::NotRegularFile, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "This is a pipe or a device, not a file.", "Why a video can't be converted") },
    ReasonRow { Reason::EmptyFile, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The file is empty.", "Why a video can't be converted") },
    ReasonRow { Reason::NotMedia, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The file is not a video, or it is damaged or incomplete.", "Why a video can't be converted") },
    ReasonRow { Reason::NoDuration, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The file does not say how long it plays.", "Why a video can't be converted") },
    ReasonRow { Reason::NoSize, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The size of the file is unknown.", "Why a video can't be converted") },
    ReasonRow { Reason::TooShort, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The video is shorter than one second.", "Why a video can't be converted") },
    ReasonRow { Reason::SizeDiffers, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The file is still being written, or only part of it could be read.", "Why a video can't be converted") },
    ReasonRow { Reason::InfoNotReadable, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The file can't be opened.", "Why a saved description of a video can't be used") },
    ReasonRow { Reason::InfoNoJson, OutcomeKind::InputRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The file holds no JSON.", "Why a saved description of a video can't be used") },

    ReasonRow { Reason::DestinationExists, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination exists already; --overwrite replaces it.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::DestinationNotWritable, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination may not be written to.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::DestinationIsFolder, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination is a folder, not a file.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::DestinationLeadsNowhere, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination is a link that leads nowhere.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::DestinationIsDevice, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination is a pipe or a device, not a file.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::DestinationIsSource, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The result can't replace a video that is to be converted.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::DestinationIsOtherResult, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The result would replace another one of this run.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::FolderMissing, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination's folder does not exist.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::FolderIsFile, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination's folder is a file.", "Why a conversion's result can't be written") },
    ReasonRow { Reason::FolderNotWritable, OutcomeKind::DestinationRefused,
        QT_TRANSLATE_NOOP3("Localizable", "The destination's folder may not be written to.", "Why a conversion's result can't be written") },

    ReasonRow { Reason::ToolMissing, OutcomeKind::ToolMissing,
        QT_TRANSLATE_NOOP3("Localizable", "The tool %@ is missing or can't be run.", "Path of a program") },
    ReasonRow { Reason::ToolFailed, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The tool failed: %@", "Why a conversion failed; the tool's own words follow") },
    ReasonRow { Reason::ToolKilled, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The tool was killed before it was done.", "Why a conversion failed") },
    ReasonRow { Reason::ToolSilent, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The tool was silent for too long and was stopped.", "Why a conversion failed") },
    ReasonRow { Reason::ToolStopped, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "Another program stopped the tool.", "Why a conversion failed") },
    ReasonRow { Reason::NoSpace, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "There is no space left on the destination's disk.", "Why a conversion failed") },
    ReasonRow { Reason::QuotaExceeded, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The disk quota is used up.", "Why a conversion failed") },
    ReasonRow { Reason::FileTooLarge, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The result is too large for the destination's disk.", "Why a conversion failed") },
    ReasonRow { Reason::ReadOnlyDisk, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The destination's disk is read-only.", "Why a conversion failed") },
    ReasonRow { Reason::AccessDenied, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "Permission was denied to read the video or to write the result.", "Why a conversion failed") },
    ReasonRow { Reason::NoEncoder, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The installed tool has no encoder %@.", "Why a conversion failed") },
    ReasonRow { Reason::NoMuxer, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The installed tool can't write the format %@.", "Why a conversion failed") },
    ReasonRow { Reason::FileGone, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The video or the destination's folder no longer exists.", "Why a conversion failed") },
    ReasonRow { Reason::NameTooLong, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The destination's name is too long.", "Why a conversion failed") },
    ReasonRow { Reason::DiskError, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "A disk reported an error.", "Why a conversion failed") },
    ReasonRow { Reason::NoMemory, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "There was not enough memory.", "Why a conversion failed") },
    ReasonRow { Reason::NothingToConvert, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The video contains nothing that this output can hold.", "Why a conversion failed") },
    ReasonRow { Reason::StreamNotTaken, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The encoder can't handle this video's picture or sound.", "Why a conversion failed") },
    ReasonRow { Reason::DamagedData, OutcomeKind::Failed,
        QT_TRANSLATE_NOOP3("Localizable", "The video's data is damaged.", "Why a conversion failed") },

    ReasonRow { Reason::Incomplete, OutcomeKind::Incomplete,
        QT_TRANSLATE_NOOP3("Localizable", "The converting progress was finished at %@", "Error message format string when file has not been converted at full length") },
    ReasonRow { Reason::Cancelled, OutcomeKind::Cancelled,
        QT_TRANSLATE_NOOP3("Localizable", "Cancelled.", "The user stopped the program") },
};
// clang-format on

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < reasonRows.size(); ++i) {
        if (reasonRows.at(i).reason != static_cast<Reason>(i))
            return false;
    }
    return reasonRows.back().reason == Reason::Cancelled;
}
static_assert(isInOrder());

const ReasonRow &rowOf(const Outcome &outcome)
{
    return reasonRows.at(static_cast<std::size_t>(outcome.reason));
}

}

OutcomeKind kindOf(const Outcome &outcome) { return rowOf(outcome).kind; }

QString sentenceOf(const Outcome &outcome)
{
    if (outcome.isDone())
        return {};
    const QString detail = outcome.reason == Reason::Incomplete
        ? DurationInfo(outcome.seconds).toString()
        : outcome.detail;
    return formatted(localized(rowOf(outcome).sentence), { detail });
}
