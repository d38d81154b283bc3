// SPDX-License-Identifier: MIT
#pragma once

#include "engine/ConversionRun.h"
#include "engine/Outcome.h"

#include <QMap>

#include <optional>

struct RunReport;

/// Lengths of the moving picture and the sound of a file. Units: seconds; absent where there is
/// none.
struct Lengths {
    std::optional<double> picture;
    std::optional<double> sound;

    [[nodiscard]] double longest() const
    {
        return std::max(picture.value_or(0), sound.value_or(0));
    }
    /// The same streams, however long.
    [[nodiscard]] Lengths withoutLengths() const
    {
        return { picture ? std::optional(0.0) : std::nullopt,
            sound ? std::optional(0.0) : std::nullopt };
    }
};

/// What a result has to hold, as the source declares it; 0 where it does not say how long. Thread:
/// any.
[[nodiscard]] Lengths expectedOf(const ConversionJob &job);
/// The stream that is to be the result's picture is a cover although there is a moving one.
[[nodiscard]] bool takesCoverForPicture(const ConversionJob &job);

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
        bool isPicture = false;
        qint64 packets = 0;
        double start = 0;
        double end = 0;
    };
    QByteArray m_rest;
    QMap<int, Stream> m_streams;
};

/// Reads a file packet by packet with the tool. Thread: a run's own; blocks. Errors: absent when
/// the tool fails.
[[nodiscard]] std::optional<Lengths> measured(const QString &path);

/// Done, or what is missing. Thread: any.
[[nodiscard]] Outcome judged(const Lengths &result, const Lengths &expected);
