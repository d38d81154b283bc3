// SPDX-License-Identifier: MIT
#include "cli/report/PlainReporter.h"

#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "support/DurationInfo.h"
#include "support/Format.h"
#include "support/Localized.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

std::chrono::milliseconds PlainReporter::interval() const { return 500ms; }

void PlainReporter::started(const ConversionItem & /*item*/) { m_lastStep = 0; }

void PlainReporter::progressed(const ConversionItem &item, const ProgressSample &sample)
{
    const std::optional<int> percent = sample.percent();
    const qint64 step = percent ? *percent / 10 : sample.elapsed / 10s;
    if (step == m_lastStep)
        return;
    m_lastStep = step;
    Output::line(printable(item.input) + u": "_s + progressText(sample).trimmed());
}

void PlainReporter::converted(const ConversionItem &item, std::chrono::milliseconds elapsed)
{
    Output::line(formatted(localized(QT_TRANSLATE_NOOP3("Localizable", "%@: converted to %@ in %@",
                               "Video, file that was made of it, time that it took")),
        { printable(item.input), printable(item.destPath),
            DurationInfo(elapsed / 1s).toString() }));
}

void PlainReporter::failed(const ConversionItem &item, const Outcome &outcome)
{
    printFailure(item, outcome);
}

void PlainReporter::summedUp(int converted, int all)
{
    Output::line(formatted(localized(QT_TRANSLATE_NOOP3("Localizable", "%d of %d videos converted",
                               "Sum after the conversion of several videos")),
        { qint64{ converted }, qint64{ all } }));
}
