// SPDX-License-Identifier: MIT
#include "engine/FFMPEG.h"

#include "analytics/Analytics.h"
#include "engine/Async.h"
#include "engine/ConversionRun.h"
#include "engine/MovieProbe.h"
#include "engine/Progress.h"
#include "engine/StagedFile.h"
#include "engine/Task.h"
#include "support/Console.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

// Qt's own limit of 128 megabytes refuses covers of 8K videos.
void allowLargeCovers() { QImageReader::setAllocationLimit(512); }

Q_COREAPP_STARTUP_FUNCTION(allowLargeCovers)

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

// Runs a tool to its end and gives its whole output; absent when it can't be launched.
std::optional<QByteArray> toolOutput(
    Tool tool, const QStringList &arguments, const ToolAccess &access)
{
    Task task;
    task.setLaunchPath(toolPath(tool));
    task.setArguments(arguments);
    task.setAccess(access);
    LaunchError error;
    if (task.tryLaunch(&error))
        return task.readDataToEndOfFile();
    Console::print(u"something bad happened: "_s + error.localizedDescription);
    return std::nullopt;
}

void getFFProbeOutput(
    const QString &path, std::function<void(const std::optional<JSON> &json)> completionHandler)
{
    Async::background([path, completionHandler = std::move(completionHandler)] {
        const QStringList arguments{ u"-v"_s, u"quiet"_s, u"-print_format"_s, u"json"_s,
            u"-show_format"_s, u"-show_streams"_s, path };
        const std::optional<QByteArray> output
            = toolOutput(Tool::Ffprobe, arguments, { MovieProbe::readPaths(path), {} });
        const std::optional<JSON> json
            = output ? std::optional(MovieProbe::description(*output)) : std::nullopt;
        Async::async([json, completionHandler] { completionHandler(json); });
    });
}

void getFFmpegMovieCover(const QString &path, const QString &offset,
    std::function<void(const QImage &cover)> completionHandler)
{
    Async::background([path, offset, completionHandler = std::move(completionHandler)] {
        QImage cover;
        StagedFile image(QDir::tempPath() + u"/cover.jpg"_s);
        // A picture of someone's video is nobody else's business.
        if (!image.create() && QFile::setPermissions(image.path(), ownerOnly)) {
            const QStringList arguments{ u"-an"_s, u"-ss"_s, offset, u"-i"_s, path, image.path(),
                u"-y"_s };
            const ToolAccess access{ MovieProbe::readPaths(path), { image.path() } };
            if (const auto output = toolOutput(Tool::Ffmpeg, arguments, access)) {
                Console::print(QString::fromUtf8(*output));
                cover.load(image.path());
            }
        }
        Async::async([cover, completionHandler] { completionHandler(cover); });
    });
}

}

void FFMPEG::collectMovieInfo(
    const QString &path, std::function<void()> errorHandler, const InfoHandler &completionHandler)
{
    collectMovieInfo(
        path, [handler = std::move(errorHandler)](const Outcome &) { handler(); },
        completionHandler);
}

void FFMPEG::collectMovieInfo(const QString &path,
    const std::function<void(const Outcome &)> &errorHandler, const InfoHandler &completionHandler,
    Cover coverWish)
{
    if (const auto refusal = MovieProbe::fileRefusal(path)) {
        Async::async([errorHandler, refusal] { errorHandler(*refusal); });
        return;
    }
    getFFProbeOutput(path, [=](const std::optional<JSON> &json) {
        if (!json) {
            errorHandler(missingTool(Tool::Ffprobe));
            return;
        }
        const auto result
            = MovieProbe::checked(*json, static_cast<quint64>(QFileInfo(path).size()));
        if (const auto *refusal = std::get_if<Outcome>(&result)) {
            errorHandler(*refusal);
            return;
        }
        const qint64 seconds = std::get<qint64>(result);
        const DurationInfo duration(seconds);
        const auto complete = [=, info = *json](const QImage &cover) {
            completionHandler(info, cover, duration.toString());
            Analytics::send(
                QString(), u"adding_video"_s, u"size"_s, MovieProbe::lengthBucket(seconds));
        };
        if (coverWish == Cover::Taken)
            getFFmpegMovieCover(path, MovieProbe::coverOffset(duration), complete);
        else
            complete({});
    });
}

std::shared_ptr<Progress> FFMPEG::convertFile(const QString &path, const QString &destPath,
    const VideoConstraints &constraints, const JSON &conversionInfo,
    ConversionErrorHandler errorHandler)
{
    auto progress = std::make_shared<Progress>(-1);
    progress->setKind(Progress::Kind::File);
    Async::background([job = ConversionJob{ path, destPath, constraints, conversionInfo }, progress,
                          errorHandler = std::move(errorHandler)] {
        runConversion(job, progress, errorHandler);
    });
    return progress;
}

void FFMPEG::shutDown()
{
    Task::stopReading();
    SerialQueue::waitForAll();
}
