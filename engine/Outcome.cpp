// SPDX-License-Identifier: MIT
#include "engine/Outcome.h"

#include "support/DurationInfo.h"
#include "support/Localized.h"
#include "support/Path.h"

#include <algorithm>
#include <array>
#include <functional>

namespace {

struct ReasonRow {
    Reason reason;
    QLatin1StringView name;
    OutcomeKind kind;
    LocalizedText sentence;
};

using enum OutcomeKind;
using namespace Qt::StringLiterals;

// clang-format off
constexpr auto reasonRows = std::to_array<ReasonRow>({
    { Reason::Done, "done"_L1, Done, { "", "" } },

    { Reason::NoSuchFile, "no-such-file"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "There is no such file.", "Why a video can't be converted") },
    { Reason::IsFolder, "is-folder"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "This is a folder, not a video.", "Why a video can't be converted") },
    { Reason::PermissionDenied, "permission-denied"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file may not be read: permission denied.", "Why a video can't be converted") },
    { Reason::NotRegularFile, "not-regular-file"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "This is a pipe or a device, not a file.", "Why a video can't be converted") },
    { Reason::EmptyFile, "empty-file"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file is empty.", "Why a video can't be converted") },
    { Reason::NotMedia, "not-media"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file is not a video, or it is damaged or incomplete.", "Why a video can't be converted") },
    { Reason::NoDuration, "no-duration"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file does not say how long it plays.", "Why a video can't be converted") },
    { Reason::NoSize, "no-size"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The size of the file is unknown.", "Why a video can't be converted") },
    { Reason::TooShort, "too-short"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The video is shorter than one second.", "Why a video can't be converted") },
    { Reason::NameNotText, "name-not-text"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file's name can't be represented as text. Please rename it.", "Why a video can't be converted") },
    { Reason::SizeDiffers, "size-differs"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file is still being written, or only part of it could be read.", "Why a video can't be converted") },
    { Reason::InfoNotReadable, "info-not-readable"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file can't be opened.", "Why a saved description of a video can't be used") },
    { Reason::ListNotReadable, "list-not-readable"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The list of videos can't be read.", "Why videos can't be converted") },
    { Reason::TreeNotReadable, "folder-not-readable"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "There is no such folder, or it may not be read.", "Why videos can't be converted") },
    { Reason::InfoNoJson, "info-no-json"_L1, InputRefused, QT_TRANSLATE_NOOP3("Localizable", "The file holds no JSON.", "Why a saved description of a video can't be used") },

    { Reason::DestinationExists, "destination-exists"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination exists already.", "Why a conversion's result can't be written") },
    { Reason::DestinationNotWritable, "destination-not-writable"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination may not be written to.", "Why a conversion's result can't be written") },
    { Reason::DestinationNameNotText, "destination-name-not-text"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination's name can't be represented as text. Please choose another one.", "Why a conversion's result can't be written") },
    { Reason::DestinationIsFolder, "destination-is-folder"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination is a folder, not a file.", "Why a conversion's result can't be written") },
    { Reason::DestinationLeadsNowhere, "destination-leads-nowhere"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination is a link that leads nowhere.", "Why a conversion's result can't be written") },
    { Reason::DestinationIsDevice, "destination-is-device"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination is a pipe or a device, not a file.", "Why a conversion's result can't be written") },
    { Reason::DestinationIsSource, "destination-is-source"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The result can't replace a video that is to be converted.", "Why a conversion's result can't be written") },
    { Reason::DestinationIsOtherResult, "destination-is-other-result"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The result would replace another one of this run.", "Why a conversion's result can't be written") },
    { Reason::FolderMissing, "folder-missing"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination's folder does not exist.", "Why a conversion's result can't be written") },
    { Reason::FolderIsFile, "folder-is-file"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination's folder is a file.", "Why a conversion's result can't be written") },
    { Reason::FolderNotWritable, "folder-not-writable"_L1, DestinationRefused, QT_TRANSLATE_NOOP3("Localizable", "The destination's folder may not be written to.", "Why a conversion's result can't be written") },

    { Reason::ToolMissing, "tool-missing"_L1, ToolMissing, QT_TRANSLATE_NOOP3("Localizable", "The tool %@ is missing or can't be run.", "Path of a program") },
    { Reason::ToolUnusable, "tool-unusable"_L1, ToolMissing, QT_TRANSLATE_NOOP3("Localizable", "The tool can't examine videos: %@", "Why no video can be converted; the tool's own words follow") },
    { Reason::ToolFailed, "tool-failed"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The tool failed: %@", "Why a conversion failed; the tool's own words follow") },
    { Reason::ToolKilled, "tool-killed"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The tool was killed before it was done.", "Why a conversion failed") },
    { Reason::ToolSilent, "tool-silent"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The tool was silent for too long and was stopped.", "Why a conversion failed") },
    { Reason::ToolStopped, "tool-stopped"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "Another program stopped the tool.", "Why a conversion failed") },
    { Reason::NoSpace, "no-space"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "There is no space left on the destination's disk.", "Why a conversion failed") },
    { Reason::QuotaExceeded, "quota-exceeded"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The disk quota is used up.", "Why a conversion failed") },
    { Reason::FileTooLarge, "file-too-large"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The result is too large for the destination's disk.", "Why a conversion failed") },
    { Reason::ReadOnlyDisk, "read-only-disk"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The destination's disk is read-only.", "Why a conversion failed") },
    { Reason::AccessDenied, "access-denied"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "Permission was denied to read the video or to write the result.", "Why a conversion failed") },
    { Reason::NoEncoder, "no-encoder"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The installed tool has no encoder %@.", "Why a conversion failed") },
    { Reason::NoMuxer, "no-muxer"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The installed tool can't write the format %@.", "Why a conversion failed") },
    { Reason::FileGone, "file-gone"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The video or the destination's folder no longer exists.", "Why a conversion failed") },
    { Reason::NameTooLong, "name-too-long"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The destination's name is too long.", "Why a conversion failed") },
    { Reason::DiskError, "disk-error"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "A disk reported an error.", "Why a conversion failed") },
    { Reason::NoMemory, "no-memory"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "There was not enough memory.", "Why a conversion failed") },
    { Reason::LimitMet, "limit-met"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The tool needed more memory, threads or files than any video should.", "Why a conversion failed") },
    { Reason::NothingToConvert, "nothing-to-convert"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The video contains nothing that this output can hold.", "Why a conversion failed") },
    { Reason::StreamNotTaken, "stream-not-taken"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The encoder can't handle this video's picture or sound.", "Why a conversion failed") },
    { Reason::DamagedData, "damaged-data"_L1, Failed, QT_TRANSLATE_NOOP3("Localizable", "The video's data is damaged.", "Why a conversion failed") },

    { Reason::Incomplete, "incomplete"_L1, Incomplete, QT_TRANSLATE_NOOP3("Localizable", "The converting progress was finished at %@", "Error message format string when file has not been converted at full length") },
    { Reason::PictureMissing, "picture-missing"_L1, Incomplete, QT_TRANSLATE_NOOP3("Localizable", "The result has no moving picture, although the video has one.", "What is wrong with a conversion's result") },
    { Reason::SoundMissing, "sound-missing"_L1, Incomplete, QT_TRANSLATE_NOOP3("Localizable", "The result has no sound, although the video has some.", "What is wrong with a conversion's result") },
    { Reason::Cancelled, "cancelled"_L1, Cancelled, QT_TRANSLATE_NOOP3("Localizable", "Cancelled.", "The user stopped the program") },
});
// clang-format on

// In the order of the reasons, none missing.
static_assert(std::ranges::adjacent_find(reasonRows, std::greater_equal(), &ReasonRow::reason)
        == reasonRows.end()
    && reasonRows.size() == std::size_t(Reason::Cancelled) + 1);

struct RemedyRow {
    QLatin1StringView name;
    LocalizedText cause;
    LocalizedText remark;
};

// In the order of the remedies.
// clang-format off
constexpr std::array remedyRows{
    RemedyRow { ""_L1, { "", "" }, { "", "" } },
    RemedyRow { "cover-left-out"_L1, QT_TRANSLATE_NOOP3("Localizable", "This output can't hold the cover picture.", "Why a conversion failed"),
                QT_TRANSLATE_NOOP3("Localizable", "The cover picture was left out, because this output can't show it.", "What was done to make a conversion work") },
    RemedyRow { "size-made-even"_L1, QT_TRANSLATE_NOOP3("Localizable", "This output can't hold a picture of odd width or height.", "Why a conversion failed"),
                QT_TRANSLATE_NOOP3("Localizable", "The picture was made a little smaller, because this output needs even sizes.", "What was done to make a conversion work") },
    RemedyRow { "sound-encoded"_L1, QT_TRANSLATE_NOOP3("Localizable", "This output can't hold the video's sound.", "Why a conversion failed"),
                QT_TRANSLATE_NOOP3("Localizable", "The sound was encoded anew, because this output can't take it as it is.", "What was done to make a conversion work") },
    RemedyRow { "picture-encoded"_L1, QT_TRANSLATE_NOOP3("Localizable", "This output can't hold the video's picture.", "Why a conversion failed"),
                QT_TRANSLATE_NOOP3("Localizable", "The picture was encoded anew, because this output can't take it as it is.", "What was done to make a conversion work") },
};
// clang-format on

const RemedyRow &rowOf(Remedy remedy) { return remedyRows.at(static_cast<std::size_t>(remedy)); }

const ReasonRow &rowOf(const Outcome &outcome)
{
    return reasonRows.at(static_cast<std::size_t>(outcome.reason));
}

}

OutcomeKind kindOf(const Outcome &outcome) { return rowOf(outcome).kind; }

QLatin1StringView nameOf(const Outcome &outcome) { return rowOf(outcome).name; }

QLatin1StringView nameOf(Remedy remedy) { return rowOf(remedy).name; }

bool mayBeTheVideos(const Outcome &failure)
{
    return failure.reason == Reason::ToolFailed || failure.reason == Reason::StreamNotTaken
        || failure.reason == Reason::DamagedData;
}

QString sentenceOf(const Outcome &outcome)
{
    if (outcome.isDone())
        return {};
    // What the last of several tries met may be the remedy's own doing.
    if (mayBeTheVideos(outcome) && !outcome.remedies.isEmpty())
        return localized(rowOf(outcome.remedies.first()).cause);
    const QString detail = outcome.reason == Reason::Incomplete
        ? DurationInfo(outcome.seconds).toString()
        : outcome.detail;
    return formatted(rowOf(outcome).sentence, { detail });
}

QStringList remarksOn(const Outcome &outcome)
{
    QStringList remarks;
    if (kindOf(outcome) == OutcomeKind::Failed)
        return remarks;
    for (const Remedy remedy : outcome.remedies)
        remarks << localized(rowOf(remedy).remark);
    if (outcome.firstDamage)
        remarks << formatted(
            QT_TRANSLATE_NOOP3("Localizable", "The video is damaged in places, first at %@.",
                "Remark on a whole result, with a time"),
            { DurationInfo(*outcome.firstDamage).toString() });
    else if (outcome.damagedPlaces > 0)
        remarks << localized(QT_TRANSLATE_NOOP3(
            "Localizable", "The video is damaged in places.", "Remark on a whole result"));
    if (!outcome.olderPath.isEmpty())
        remarks << formatted(QT_TRANSLATE_NOOP3("Localizable", "The older file was kept as “%@”.",
                                 "Remark on a short result, with a file's name"),
            { Path::lastPathComponent(outcome.olderPath) });
    return remarks;
}
