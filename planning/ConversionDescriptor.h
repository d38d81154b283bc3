// SPDX-License-Identifier: MIT
#pragma once

#include "planning/VideoConstraints.h"
#include "support/JSON.h"

#include <QStringList>

#include <optional>

struct ChosenStream {
    qint64 index;
    JSON item;
};

/// Of the streams of this kind, such as "video".
[[nodiscard]] std::optional<ChosenStream> firstStream(
    const JSON &conversionInfo, QLatin1StringView kind);

/// Codecs and muxer of an output, and the tool's arguments made from them. Thread: any.
struct ConversionDescriptor {
    QString ext;
    /// A source stream with this codec name can be copied.
    QString vName;
    /// Encoder for all others. Empty: streams of both kinds are left to the tool's own choice.
    QString vCodec;
    QString aName;
    QString aCodec;
    QString format;
    QString vDop;
    QStringList extraCmd;

    /// First video stream of a media information, if this format chooses streams at all.
    [[nodiscard]] std::optional<ChosenStream> videoStream(const JSON &conversionInfo) const;
    [[nodiscard]] std::optional<ChosenStream> audioStream(const JSON &conversionInfo) const;

    [[nodiscard]] QStringList ffmpegArguments(const QString &path, const QString &destPath,
        const JSON &conversionInfo, const VideoDimensionsConstraints &constraints) const;
};
