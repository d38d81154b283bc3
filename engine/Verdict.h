// SPDX-License-Identifier: MIT
#pragma once

#include "engine/ConversionRun.h"
#include "engine/Outcome.h"

#include <QMap>
#include <QtNumeric>

#include <optional>

struct RunReport;

/// Lengths of the moving picture and the sound of a file, each from its own start. Units: seconds;
/// absent where there is none.
struct Lengths {
    std::optional<double> picture;
    std::optional<double> sound;
    /// From the first start of all streams to the last end; 0 where not measured.
    double whole = 0;
    /// The source says only how long all of its streams are together.
    bool isOfAllStreams = false;
    /// The tool made it up from the source's size.
    bool isGuessed = false;

    [[nodiscard]] double longest() const
    {
        return std::max(picture.value_or(0), sound.value_or(0));
    }
};

/// What a result has to hold, as the source says; 0 where it gives no length. Thread: any.
[[nodiscard]] Lengths expectedOf(const ConversionJob &job);
/// The plan takes a cover for the picture although there is a moving one.
[[nodiscard]] bool takesCoverForPicture(const ConversionJob &job);

/// What a few bytes of a source say of the rest. Thread: any.
struct SourceData {
    /// The size that it claims to have, by the one it has; 1 where it claims no more.
    double claim = 1;
    /// A part was never written, as in a download that broke off.
    bool hasHole = false;
};
[[nodiscard]] SourceData dataOf(const QString &path);

/// Cheap signs that a result has to be looked at. `run` is how its run ended. Thread: any.
[[nodiscard]] bool isInDoubt(const Outcome &run, const RunReport &report, const Lengths &expected);

/// Adds up packets, printed as "video,0,pts,dts,duration" lines: what a header declares may never
/// have been written. A picture of one packet is a still. Thread: one at a time.
class PacketReader {
public:
    void append(const QByteArray &chunk);
    [[nodiscard]] Lengths lengths() const;

private:
    void readLine(const QByteArray &line);

    struct Stream {
        QByteArray kind;
        qint64 packets = 0;
        double start = qInf();
        double end = -qInf();
    };
    QByteArray m_rest;
    QMap<int, Stream> m_streams;
};

/// Done, or what is missing. Thread: any.
[[nodiscard]] Outcome judged(const Lengths &result, const Lengths &expected);

/// Frames have to be decoded, which takes long.
enum class Reading { Packets, Frames };
/// Reads the result, and the source where the answer hangs on it. Thread: a run's own; blocks.
/// Errors: absent when the tool can't be run, or the job is cancelled.
[[nodiscard]] std::optional<Outcome> inspected(
    const ConversionJob &job, const Lengths &expected, Reading reading, const Progress &progress);
/// The job's destination holds a whole result already: it is newer than the source, and its packets
/// are as long as the source says. Thread: not main; reads it all, until `progress` is cancelled.
[[nodiscard]] bool holdsWholeResult(const ConversionJob &job, const Progress &progress);
