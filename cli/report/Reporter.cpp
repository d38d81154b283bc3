// SPDX-License-Identifier: MIT
#include "cli/report/Reporter.h"

#include "cli/report/JsonReporter.h"
#include "cli/report/Output.h"
#include "cli/report/TerminalReporter.h"

std::unique_ptr<Reporter> Reporter::suitable(bool json)
{
    if (json)
        return std::make_unique<JsonReporter>();
    if (Output::terminalColumns() > 0)
        return std::make_unique<TerminalReporter>();
    return std::make_unique<PlainReporter>();
}

void Reporter::printFailure(const ConversionItem &item, const Outcome &outcome)
{
    const bool isDestination = kindOf(outcome) == OutcomeKind::DestinationRefused;
    Output::failure(isDestination ? item.destPath : item.input, outcome);
}
