// SPDX-License-Identifier: MIT
#include "cli/report/TerminalReporter.h"

#include "cli/report/Output.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void clearLine() { Output::raw(u"\r\u001b[K"_s); }

}

std::chrono::milliseconds TerminalReporter::interval() const { return 200ms; }

void TerminalReporter::started(const ConversionItem &item) { progressed(item, {}); }

void TerminalReporter::progressed(const ConversionItem &item, const ProgressSample &sample)
{
    Output::raw(u'\r' + progressBar(item.input, sample, Output::terminalColumns()) + u"\u001b[K"_s);
}

void TerminalReporter::converted(const ConversionItem &item, std::chrono::milliseconds elapsed)
{
    clearLine();
    PlainReporter::converted(item, elapsed);
}

void TerminalReporter::failed(const ConversionItem &item, const Outcome &outcome)
{
    clearLine();
    PlainReporter::failed(item, outcome);
}
