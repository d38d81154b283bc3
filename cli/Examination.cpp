// SPDX-License-Identifier: MIT
#include "cli/Examination.h"

#include "support/Bundle.h"
#include "support/FileSystem.h"
#include "support/Format.h"
#include "support/Interruption.h"
#include "support/Localized.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <functional>
#include <memory>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString fileRefusal(const QString &path)
{
    const QFileInfo file(path);
    const bool readable = ::access(QFile::encodeName(path).constData(), R_OK) == 0;
    if (!readable && errno != EACCES)
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "There is no such file.", "Why a video can't be converted"));
    if (file.isDir())
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "This is a folder, not a video.", "Why a video can't be converted"));
    if (!readable)
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "The file may not be read: permission denied.", "Why a video can't be converted"));
    if (!isRegularFile(path))
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "This is a pipe or a device, not a file.", "Why a video can't be converted"));
    if (file.size() == 0)
        return localized(QT_TRANSLATE_NOOP3(
            "Localizable", "The file is empty.", "Why a video can't be converted"));
    return {};
}

LocalizedText messageOf(ProbeRefusal refusal)
{
    switch (refusal) {
    case ProbeRefusal::NotARegularFile:
        return QT_TRANSLATE_NOOP3(
            "Localizable", "The file has gone.", "Why a video can't be converted");
    case ProbeRefusal::ToolNotLaunched:
        return QT_TRANSLATE_NOOP3("Localizable", "The tool that examines videos can't be started.",
            "Why a video can't be converted");
    case ProbeRefusal::NotMedia:
        return QT_TRANSLATE_NOOP3("Localizable",
            "The file is no video, or it is damaged or incomplete.",
            "Why a video can't be converted");
    case ProbeRefusal::NoDuration:
        return QT_TRANSLATE_NOOP3("Localizable", "The file does not tell how long it plays.",
            "Why a video can't be converted");
    case ProbeRefusal::NoSize:
        return QT_TRANSLATE_NOOP3(
            "Localizable", "The file's size can't be found out.", "Why a video can't be converted");
    case ProbeRefusal::TooShort:
        return QT_TRANSLATE_NOOP3("Localizable", "The video is shorter than one second.",
            "Why a video can't be converted");
    case ProbeRefusal::SizeDiffers:
        return QT_TRANSLATE_NOOP3("Localizable",
            "The file is still being written, or could be read only in part.",
            "Why a video can't be converted");
    }
    return {};
}

std::optional<Failure> missingTool()
{
    for (const QString &tool : { u"ffprobe"_s, u"ffmpeg"_s }) {
        const QString path = Bundle::main().bundlePath() + u"/Contents/ffmpeg/"_s + tool;
        if (!isRegularFile(path) || !QFileInfo(path).isExecutable())
            return Failure{ ExitCode::ToolsMissing,
                formatted(localized(QT_TRANSLATE_NOOP3("Localizable",
                              "The tool %@ is missing or can't be run.", "Path of a program")),
                    { path }) };
    }
    return std::nullopt;
}

/// Outlives the wait: the answer may come after an interruption has ended that.
struct ProbeAnswer {
    std::variant<VideoDescription, Failure> result;
    std::function<void()> wake;

    void give(std::variant<VideoDescription, Failure> value)
    {
        result = std::move(value);
        if (wake)
            wake();
    }
};

void ask(const QString &path, Cover coverWish, const std::shared_ptr<ProbeAnswer> &answer)
{
    const auto refuse = [answer](ProbeRefusal refusal) {
        const ExitCode code = refusal == ProbeRefusal::ToolNotLaunched ? ExitCode::ToolsMissing
                                                                       : ExitCode::InputRefused;
        answer->give(Failure{ code, localized(messageOf(refusal)) });
    };
    const auto accept = [answer](const JSON &info, const QImage &cover, const QString &duration) {
        answer->give(VideoDescription{ .info = info,
            .duration = duration,
            .cover = cover.isNull() ? std::nullopt : std::optional(cover.size()) });
    };
    FFMPEG::collectMovieInfo(path, refuse, accept, coverWish);
}

}

QString absolutePath(const QString &path)
{
    static const QRegularExpression nothing(u"/(?:\\.?/)+"_s);
    // A current folder that was removed has no path; without the dot "/" would stand in for it.
    const QString folder = QDir::currentPath().isEmpty() ? u"."_s : QDir::currentPath();
    QString absolute = path.startsWith(u'/') ? path : folder + u'/' + path;
    return absolute.replace(nothing, u"/"_s);
}

std::variant<VideoDescription, Failure> examined(
    const QString &path, Cover cover, Interruption &interruption)
{
    if (const QString refusal = fileRefusal(path); !refusal.isEmpty())
        return Failure{ ExitCode::InputRefused, refusal };
    if (auto missing = missingTool())
        return *std::move(missing);
    QEventLoop loop;
    const auto answer = std::make_shared<ProbeAnswer>();
    answer->wake = [&loop] { loop.quit(); };
    QObject::connect(&interruption, &Interruption::arrived, &loop, &QEventLoop::quit);
    ask(path, cover, answer);
    if (Interruption::signal() == 0)
        loop.exec();
    answer->wake = nullptr;
    // A tool that got the same Ctrl-C gives a refusal that says nothing of the video.
    if (Interruption::signal() != 0)
        return cancelledFailure();
    return answer->result;
}

Failure cancelledFailure()
{
    return { ExitCode::Cancelled,
        localized(
            QT_TRANSLATE_NOOP3("Localizable", "Cancelled.", "The user stopped the program")) };
}
