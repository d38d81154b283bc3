// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"
#include "support/JSON.h"

#include <QString>
#include <QStringList>

#include <optional>

/// A stream of the input that the output carries over.
struct ChosenStream {
    /// Place in the media information's list of streams, from 0.
    qint64 index;
    JSON item;
};

/// Codec and muxer settings of an output format, and the tool's arguments made from them.
/// Thread: any.
struct ConversionDescriptor {
    /// File extension of the output, without a dot.
    QString ext;
    /// A source stream with this codec name can be copied.
    QString vName;
    /// Encoder for all others. Empty: streams of both kinds are left to the tool's own choice.
    QString vCodec;
    QString aName;
    QString aCodec;
    /// The tool's name of the muxer.
    QString format;
    /// Options of the video encoder, separated by spaces.
    QString vDop;
    /// Further arguments, placed before the muxer.
    QStringList extraCmd;

    /// First video stream of a media information, if this format chooses streams at all.
    [[nodiscard]] std::optional<ChosenStream> videoStream(const JSON &conversionInfo) const;
    /// First audio stream, under the same condition.
    [[nodiscard]] std::optional<ChosenStream> audioStream(const JSON &conversionInfo) const;

    /// Arguments that go between the input and the output path. The paths themselves have no
    /// influence.
    [[nodiscard]] QStringList ffmpegArguments(const QString &path, const QString &destPath,
        const JSON &conversionInfo, const VideoDimensionsConstraints &constraints) const;

    bool operator==(const ConversionDescriptor &) const = default;
};
