// SPDX-License-Identifier: MIT
#include "cli/Examination.h"

#include "support/Interruption.h"

#include <QEventLoop>

#include <functional>
#include <memory>

namespace {

/// Outlives the wait: the description may arrive after an interruption ended it.
struct PendingDescription {
    std::variant<VideoDescription, Outcome> result;
    std::function<void()> wake;

    void set(std::variant<VideoDescription, Outcome> value)
    {
        result = std::move(value);
        if (wake)
            wake();
    }
};

void examine(
    const QString &path, Cover coverWish, const std::shared_ptr<PendingDescription> &pending)
{
    const auto refuse = [pending](const Outcome &refusal) { pending->set(refusal); };
    const auto accept = [pending](const JSON &info, const QImage &cover, const QString &duration) {
        pending->set(VideoDescription{ .info = info,
            .duration = duration,
            .cover = cover.isNull() ? std::nullopt : std::optional(cover.size()) });
    };
    FFMPEG::collectMovieInfo(path, refuse, accept, coverWish);
}

}

std::variant<VideoDescription, Outcome> examined(
    const QString &path, Cover cover, Interruption &interruption)
{
    QEventLoop loop;
    const auto pending = std::make_shared<PendingDescription>();
    pending->wake = [&loop] { loop.quit(); };
    QObject::connect(&interruption, &Interruption::arrived, &loop, &QEventLoop::quit);
    examine(path, cover, pending);
    if (Interruption::signal() == 0)
        loop.exec();
    pending->wake = nullptr;
    // The same Ctrl-C may have stopped the tool: its refusal says nothing about the video.
    if (Interruption::signal() != 0)
        return Outcome{ Reason::Cancelled };
    return pending->result;
}
