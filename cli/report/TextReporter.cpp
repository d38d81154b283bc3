// SPDX-License-Identifier: MIT
#include "cli/report/TextReporter.h"

#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "support/DurationInfo.h"
#include "support/Format.h"
#include "support/Localized.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TextReporter::TextReporter()
    : m_isTerminal(Output::terminalColumns() > 0)
{
}

std::chrono::milliseconds TextReporter::interval() const { return m_isTerminal ? 200ms : 500ms; }

void TextReporter::started(const ConversionItem &item)
{
    m_lastStep = 0;
    progressed(item, {});
}

void TextReporter::progressed(const ConversionItem &item, const ProgressSample &sample)
{
    if (m_isTerminal)
        return Output::raw(
            u'\r' + progressBar(item.input, sample, Output::terminalColumns()) + u"\u001b[K"_s);
    const std::optional<int> percent = sample.percent();
    const qint64 step = percent ? *percent / 10 : sample.elapsed / 10s;
    if (std::exchange(m_lastStep, step) != step)
        Output::line(printable(item.input) + u": "_s + progressText(sample).trimmed());
}

void TextReporter::converted(
    const ConversionItem &item, const Outcome &outcome, std::chrono::milliseconds elapsed)
{
    clearBar();
    Output::line(formatted(QT_TRANSLATE_NOOP3("Localizable", "%@: converted to %@ in %@",
                               "Video, file that was made of it, time that it took"),
        { printable(item.input), printable(item.destPath),
            DurationInfo(elapsed / 1s).toString() }));
    for (const QString &remark : remarksOn(outcome))
        Output::line(printable(item.input + u": "_s + remark));
}

void TextReporter::failed(const ConversionItem &item, const Outcome &outcome)
{
    clearBar();
    printFailure(item, outcome);
}

void TextReporter::summedUp(int converted, int all)
{
    Output::line(formatted(QT_TRANSLATE_NOOP3("Localizable", "%d of %d videos converted",
                               "Sum after the conversion of several videos"),
        { qint64{ converted }, qint64{ all } }));
}

void TextReporter::clearBar() const
{
    if (m_isTerminal)
        Output::raw(u"\r\u001b[K"_s);
}
