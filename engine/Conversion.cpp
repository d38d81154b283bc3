// SPDX-License-Identifier: MIT
#include "engine/Conversion.h"

#include "engine/Async.h"
#include "engine/Destination.h"
#include "engine/Remedy.h"
#include "engine/RunReport.h"
#include "engine/StagedFile.h"
#include "engine/Verdict.h"
#include "support/FileSystem.h"

#include <semaphore>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool isGood(const Outcome &outcome)
{
    const OutcomeKind kind = kindOf(outcome);
    return kind == OutcomeKind::Done || kind == OutcomeKind::Incomplete;
}

qint64 probedLength(const ConversionJob &job)
{
    const double seconds = job.conversionInfo[u"format"_s][u"duration"_s].stringValue().toDouble();
    return seconds >= 1 && seconds < 1e9 ? static_cast<qint64>(seconds) : -1;
}

// One conversion: its tries, and what they came to.
struct Tries {
    ConversionJob wanted;
    OlderFile olderFile;
    std::shared_ptr<Progress> progress;
    QByteArray output = {};

    [[nodiscard]] Outcome convert()
    {
        // Where the user keeps a link, what it leads to is replaced.
        wanted.destPath = linkTarget(wanted.destPath);
        if (const auto refusal = refusalOf({ .path = wanted.destPath,
                .sources = { wanted.path },
                .overwrite = olderFile != OlderFile::Kept }))
            return *refusal;
        StagedFile staged(wanted.destPath);
        ConversionJob job = wanted;
        Outcome outcome = tryOnce(job, staged);
        QList<Remedy> remedies;
        // Music may come with a cover and a sample rate that the output can't hold: a try for each.
        for (Remedy remedy = remedyFor(outcome, output, job);
             remedy != Remedy::None && !remedies.contains(remedy) && !progress->isCancelled();
             remedy = remedyFor(outcome, output, job)) {
            remedies << remedy;
            progress->setRemedy(remedy);
            job = remedied(job, remedy);
            outcome = tryOnce(job, staged);
        }
        outcome.remedies = remedies;
        return place(staged, outcome);
    }

    [[nodiscard]] Outcome tryOnce(const ConversionJob &job, StagedFile &staged)
    {
        if (const auto refusal = staged.create())
            return *refusal;
        ConversionJob stagedJob = job;
        stagedJob.destPath = staged.path();
        const Outcome outcome = runTool(stagedJob);
        return isGood(outcome) ? verdictOn(stagedJob, outcome) : outcome;
    }

    [[nodiscard]] Outcome runTool(const ConversionJob &job)
    {
        const auto ended = std::make_shared<std::binary_semaphore>(0);
        const std::shared_ptr<Progress> run = FFMPEG::convertFile(
            job.path, job.destPath, job.constraints, job.conversionInfo, [](const auto &) {});
        run->addObserver(Progress::Key::FractionCompleted, this,
            [this, raw = run.get()](Progress::Key) { follow(*raw); });
        run->setEndHandler([ended] { ended->release(); });
        while (!ended->try_acquire_for(50ms)) {
            if (progress->isCancelled())
                run->cancel();
            if (run->isIndeterminate() && run->position() > 0)
                follow(*run);
        }
        output = run->toolOutput();
        return run->outcome();
    }

    // The last step is left for the result's move into place.
    void follow(const Progress &run) const
    {
        // Of some sound files the tool prints no length, but the probe knows it.
        const bool isUnknown = run.isIndeterminate();
        const qint64 total = isUnknown ? probedLength(wanted) : run.totalUnitCount();
        const qint64 position = isUnknown ? run.position() : run.completedUnitCount();
        if (total != progress->totalUnitCount())
            progress->setTotalUnitCount(total);
        const qint64 completed = std::min(position, total - 1);
        if (total > 0 && completed >= 0 && completed != progress->completedUnitCount())
            progress->setCompletedUnitCount(completed);
    }

    [[nodiscard]] Outcome verdictOn(const ConversionJob &job, const Outcome &run) const
    {
        const RunReport report = reportOf(output, { job.path, job.destPath });
        Lengths expected = expectedOf(job);
        const SourceData data = dataOf(job.path);
        expected.isGuessed = report.lengthIsGuessed && data.claim <= 1;
        for (std::optional<double> *length : { &expected.picture, &expected.sound }) {
            if (*length)
                **length *= data.claim;
        }
        // A copy has all packets, whatever is in them.
        const bool copiesHole = data.hasHole && conversionArguments(job).contains(u"copy");
        Outcome outcome = takesCoverForPicture(job) ? Outcome{ Reason::PictureMissing } : Outcome{};
        if (outcome.isDone() && (copiesHole || isInDoubt(run, report, expected)))
            outcome = inspected(
                job, expected, copiesHole ? Reading::Frames : Reading::Packets, *progress)
                          .value_or(run);
        outcome.damagedPlaces = report.damagedPlaces;
        outcome.firstDamage = report.firstDamage;
        return outcome;
    }

    [[nodiscard]] Outcome place(StagedFile &staged, Outcome outcome) const
    {
        if (!isGood(outcome))
            return outcome;
        if (progress->isCancelled())
            return { Reason::Cancelled };
        const bool isReplaced = outcome.isDone() && olderFile == OlderFile::Replaced;
        const auto refusal = staged.moveIntoPlace(
            olderFile != OlderFile::Kept, *progress, isReplaced ? nullptr : &outcome.olderPath);
        return refusal ? *refusal : outcome;
    }
};

}

std::shared_ptr<Progress> Conversion::start(
    ConversionJob job, OlderFile olderFile, FFMPEG::ConversionErrorHandler errorHandler)
{
    auto progress = std::make_shared<Progress>(-1);
    progress->setKind(Progress::Kind::File);
    Async::background(
        [job = std::move(job), olderFile, progress, errorHandler = std::move(errorHandler)] {
            Tries tries{ job, olderFile, progress };
            const Outcome outcome = tries.convert();
            progress->setOutcome(outcome, tries.output);
            const OutcomeKind kind = kindOf(outcome);
            if (kind == OutcomeKind::ToolMissing)
                progress->cancel();
            else if (!outcome.isDone() && kind != OutcomeKind::Cancelled)
                Async::async([errorHandler, outcome, kind] {
                    errorHandler(kind == OutcomeKind::Failed ? std::nullopt
                                                             : std::optional(sentenceOf(outcome)));
                });
            if (isGood(outcome))
                progress->setCompletedUnitCount(progress->totalUnitCount());
            progress->end();
        });
    return progress;
}
