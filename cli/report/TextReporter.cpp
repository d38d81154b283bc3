// SPDX-License-Identifier: MIT
#include "cli/report/TextReporter.h"

#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "support/DurationInfo.h"
#include "support/Format.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TextReporter::TextReporter(bool isQuiet)
    : m_isQuiet(isQuiet)
    , m_isTerminal(!isQuiet && Output::terminalColumns() > 0)
{
}

std::chrono::milliseconds TextReporter::interval() const { return m_isTerminal ? 200ms : 500ms; }

void TextReporter::started(const ConversionItem &item) { m_steps[item.input.path] = 0; }

void TextReporter::progressed(
    const std::vector<RunningSample> &running, const BatchSum &sum, const ProgressSample &whole)
{
    if (m_isQuiet || running.empty())
        return;
    if (!m_isTerminal) {
        for (const RunningSample &each : running)
            printStep(each);
        return;
    }
    const int columns = Output::terminalColumns();
    QStringList bars;
    for (const RunningSample &each : running)
        bars << progressBar(each.item->input.name, each.sample, columns);
    if (sum.all > 1)
        bars << progressBar(formatted(QT_TRANSLATE_NOOP3("Localizable", "%d of %d",
                                          "Number of videos that are done, and of all"),
                                { qint64(sum.ended()), qint64(sum.all) }),
            { .completed = whole.completed, .total = whole.total, .left = whole.left }, columns);
    QString text = u"\r"_s;
    if (m_shownBars > 1)
        text += u"\u001b[%1A"_s.arg(m_shownBars - 1);
    Output::raw(text + bars.join(u"\u001b[K\n"_s) + u"\u001b[K\u001b[J"_s);
    m_shownBars = static_cast<int>(bars.size());
}

void TextReporter::printStep(const RunningSample &running)
{
    const std::optional<int> percent = running.sample.percent();
    const qint64 step = percent ? *percent / 10 : running.sample.elapsed / 10s;
    if (std::exchange(m_steps[running.item->input.path], step) != step)
        Output::line(
            printable(running.item->input.name) + u": "_s + progressText(running.sample).trimmed());
}

void TextReporter::converted(const ConversionItem &item, const ConvertedVideo &video)
{
    m_steps.remove(item.input.path);
    say(formatted(QT_TRANSLATE_NOOP3("Localizable", "%@: converted to %@ in %@",
                      "Video, file that was made of it, time that it took"),
        { printable(item.input.name), printable(item.destPath),
            DurationInfo(video.elapsed / 1s).toString() }));
    for (const QString &remark : remarksOn(video.outcome))
        say(printable(item.input.name + u": "_s + remark));
}

void TextReporter::skipped(const ConversionItem &item)
{
    say(formatted(QT_TRANSLATE_NOOP3("Localizable", "%@: %@ is there already",
                      "Video, file that was made of it in an earlier run"),
        { printable(item.input.name), printable(item.destPath) }));
}

void TextReporter::leftOut(const ConversionItem & /*item*/, const Outcome & /*outcome*/) { }

void TextReporter::failed(const ConversionItem &item, const Outcome &outcome)
{
    m_steps.remove(item.input.path);
    clearBars();
    printFailure(item, outcome);
}

void TextReporter::summedUp(const BatchSum &sum)
{
    say(formatted(QT_TRANSLATE_NOOP3("Localizable", "%d of %d videos converted",
                      "Sum after the conversion of several videos"),
        { qint64(sum.converted), qint64(sum.all) }));
}

void TextReporter::say(const QString &text)
{
    clearBars();
    if (!m_isQuiet)
        Output::line(text);
}

void TextReporter::clearBars()
{
    if (m_shownBars > 0)
        Output::raw(
            (m_shownBars > 1 ? u"\r\u001b[%1A"_s.arg(m_shownBars - 1) : u"\r"_s) + u"\u001b[J"_s);
    m_shownBars = 0;
}
