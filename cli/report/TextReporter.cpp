// SPDX-License-Identifier: MIT
#include "cli/report/Output.h"
#include "cli/report/Reporter.h"
#include "cli/report/ShownText.h"
#include "support/DurationInfo.h"
#include "support/Localized.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void printStep(const RunningSample &running)
{
    const ProgressSample &sample = running.sample;
    const std::optional<int> percent = sample.percent();
    const qint64 step = percent ? *percent / 10 : sample.elapsed / 10s;
    if (std::max<qint64>(std::exchange(running.lastReported, step), 0) != step)
        Output::line(printable(running.item.input.name) + u": "_s + progressText(sample).trimmed());
}

class TextReporter : public Reporter {
public:
    explicit TextReporter(bool isQuiet)
        : m_isQuiet(isQuiet)
        , m_isTerminal(!isQuiet && Output::terminalSize().isValid())
    {
    }

    [[nodiscard]] std::chrono::milliseconds interval() const override
    {
        return m_isTerminal ? 200ms : 500ms;
    }

    void progressed(const std::vector<RunningSample> &running, const BatchSum &sum,
        const ProgressSample &whole) override
    {
        if (m_isQuiet || running.empty())
            return;
        if (!m_isTerminal) {
            std::ranges::for_each(running, printStep);
            return;
        }
        const QSize terminal = Output::terminalSize();
        QStringList bars;
        for (const RunningSample &each : running)
            bars << progressBar(each.item.input.name, each.sample, terminal.width());
        if (sum.all > 1)
            bars << progressBar(formatted(QT_TRANSLATE_NOOP3("Localizable", "%d of %d",
                                              "Number of videos that are done, and of all"),
                                    { qint64(sum.ended()), qint64(sum.all) }),
                { .completed = whole.completed, .total = whole.total, .left = whole.left },
                terminal.width());
        // What has scrolled away can't be drawn over.
        bars = bars.last(std::min<qsizetype>(bars.size(), std::max(1, terminal.height())));
        Output::raw(toFirstBar() + bars.join(u"\u001b[K\n"_s) + u"\u001b[K\u001b[J"_s);
        m_shownBars = static_cast<int>(bars.size());
    }

    void converted(const ConversionItem &item, const ConvertedVideo &video) override
    {
        say(formatted(QT_TRANSLATE_NOOP3("Localizable", "%@: converted to %@ in %@",
                          "Video, file that was made of it, time that it took"),
            { printable(item.input.name), printable(item.destPath),
                DurationInfo(video.elapsed / 1s).toString() }));
        for (const QString &remark : remarksOn(video.outcome))
            say(printable(item.input.name + u": "_s + remark));
    }

    void skipped(const ConversionItem &item) override
    {
        say(formatted(QT_TRANSLATE_NOOP3("Localizable", "%@: %@ is there already",
                          "Video, file that was made of it in an earlier run"),
            { printable(item.input.name), printable(item.destPath) }));
    }

    void failed(const ConversionItem & /*item*/, const Outcome & /*outcome*/) override
    {
        clearBars();
    }

    void summedUp(const BatchSum &sum) override
    {
        say(formatted(QT_TRANSLATE_NOOP3("Localizable", "%d of %d videos converted",
                          "Sum after the conversion of several videos"),
            { qint64(sum.converted), qint64(sum.all) }));
    }

private:
    [[nodiscard]] QString toFirstBar() const
    {
        return m_shownBars > 1 ? u"\r\u001b[%1A"_s.arg(m_shownBars - 1) : u"\r"_s;
    }

    void clearBars()
    {
        if (m_shownBars > 0)
            Output::raw(toFirstBar() + u"\u001b[J"_s);
        m_shownBars = 0;
    }

    void say(const QString &text)
    {
        clearBars();
        if (!m_isQuiet)
            Output::line(text);
    }

    bool m_isQuiet;
    bool m_isTerminal;
    int m_shownBars = 0;
};

}

std::unique_ptr<Reporter> textReporter(bool isQuiet)
{
    return std::make_unique<TextReporter>(isQuiet);
}
