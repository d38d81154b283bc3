// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Inputs.h"
#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "support/Interruption.h"
#include "support/Localized.h"

#include <QEventLoop>
#include <QJsonObject>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

QJsonObject jsonOf(const QString &path, const VideoDescription &video)
{
    const double seconds = video.info[u"format"_s][u"duration"_s].stringValue().toDouble();
    QJsonValue cover;
    if (!video.cover.isEmpty())
        cover = QJsonObject{ { u"width"_s, video.cover.width() },
            { u"height"_s, video.cover.height() } };
    return { { u"input"_s, path }, { u"info"_s, video.info.value() },
        { u"duration"_s, video.duration }, { u"seconds"_s, static_cast<qint64>(seconds) },
        { u"cover"_s, cover } };
}

/// Such as "video, h264, 1920 x 1080" or "audio, aac, 48000 Hz, 2 channels".
QString streamText(const JSON &stream)
{
    QStringList parts{ stream[u"codec_type"_s].stringValue(),
        stream[u"codec_name"_s].stringValue() };
    if (const auto width = stream[u"width"_s].integer())
        parts << u"%1 x %2"_s.arg(*width).arg(stream[u"height"_s].intValue());
    if (const QString rate = stream[u"sample_rate"_s].stringValue(); !rate.isEmpty())
        parts << rate + u" Hz"_s;
    if (const auto channels = stream[u"channels"_s].integer())
        parts << formatted(
            QT_TRANSLATE_NOOP3("Localizable", "%d ch", "Number of sound channels, abbreviated"),
            { *channels });
    parts.removeAll(QString());
    return printable(parts.join(u", "_s));
}

void printField(const LocalizedText &name, const QString &value)
{
    Output::line(leftJustified(localized(name) + u": "_s, 14) + value);
}

void printText(const VideoDescription &video)
{
    printField(QT_TRANSLATE_NOOP3("Localizable", "Length", "Property of a video"), video.duration);
    printField(QT_TRANSLATE_NOOP3("Localizable", "Container", "Property of a video"),
        printable(video.info[u"format"_s][u"format_long_name"_s].stringValue()));
    int index = 0;
    for (const JSON &stream : video.info[u"streams"_s].array())
        printField(QT_TRANSLATE_NOOP3("Localizable", "Stream", "Property of a video"),
            u"%1, %2"_s.arg(index++).arg(streamText(stream)));
    const QString none
        = localized(QT_TRANSLATE_NOOP3("Localizable", "none", "A video has no cover picture"));
    printField(QT_TRANSLATE_NOOP3("Localizable", "Cover", "Property of a video"),
        video.cover.isEmpty() ? none
                              : u"%1 x %2"_s.arg(video.cover.width()).arg(video.cover.height()));
}

}

VideoDescription examined(const QString &path, Cover cover, Interruption &interruption)
{
    QEventLoop loop;
    QObject::connect(&interruption, &Interruption::arrived, &loop, &QEventLoop::quit);
    // The description may arrive after an interruption ended the wait.
    const auto result = std::make_shared<VideoDescription>();
    const auto finish = [result, waiting = QPointer(&loop)](const VideoDescription &value) {
        *result = value;
        if (waiting)
            waiting->quit();
    };
    FFMPEG::collectMovieInfo(
        path, [finish](const Outcome &refusal) { finish({ .refusal = refusal }); },
        [finish](const JSON &info, const QImage &image, const QString &duration) {
            finish({ .info = info, .duration = duration, .cover = image.size() });
        },
        cover);
    if (Interruption::signal() == 0)
        loop.exec();
    // The same Ctrl-C may have stopped the tool: its refusal says nothing about the video.
    if (Interruption::signal() != 0)
        result->refusal = { Reason::Cancelled };
    return *result;
}

ExitCode probeVideos(const CommandLine &line, Interruption &interruption)
{
    const bool isOne = line.inputs.size() == 1;
    ExitCode code = ExitCode::Done;
    for (const QString &name : line.inputs) {
        const VideoDescription video = examined(absolutePath(name), Cover::Taken, interruption);
        if (!video.refusal.isDone()) {
            const ExitCode failure = Output::failure(name, video.refusal);
            code = code == ExitCode::Done ? failure : code;
            if (Interruption::signal() != 0)
                break;
            continue;
        }
        if (line.json) {
            Output::json(QJsonDocument(jsonOf(absolutePath(name), video)),
                isOne ? QJsonDocument::Indented : QJsonDocument::Compact);
            continue;
        }
        if (!isOne)
            Output::line(printable(name));
        printText(video);
    }
    return code;
}
