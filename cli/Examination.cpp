// SPDX-License-Identifier: MIT
#include "cli/Examination.h"

#include "support/Interruption.h"

#include <QEventLoop>
#include <QPointer>

#include <memory>

std::variant<VideoDescription, Outcome> examined(
    const QString &path, Cover cover, Interruption &interruption)
{
    using Result = std::variant<VideoDescription, Outcome>;
    QEventLoop loop;
    QObject::connect(&interruption, &Interruption::arrived, &loop, &QEventLoop::quit);
    // The description may arrive after an interruption ended the wait.
    const auto result = std::make_shared<Result>();
    const auto finish = [result, waiting = QPointer(&loop)](const Result &value) {
        *result = value;
        if (waiting)
            waiting->quit();
    };
    FFMPEG::collectMovieInfo(
        path, [finish](const Outcome &refusal) { finish(refusal); },
        [finish](const JSON &info, const QImage &image, const QString &duration) {
            finish(VideoDescription{ info, duration, image.size() });
        },
        cover);
    if (Interruption::signal() == 0)
        loop.exec();
    // The same Ctrl-C may have stopped the tool: its refusal says nothing about the video.
    return Interruption::signal() != 0 ? Outcome{ Reason::Cancelled } : *result;
}
