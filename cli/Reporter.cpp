// SPDX-License-Identifier: MIT
#include "cli/Reporter.h"

#include "cli/JsonReporter.h"
#include "cli/Output.h"
#include "cli/TerminalReporter.h"

std::unique_ptr<Reporter> Reporter::suitable(bool json)
{
    if (json)
        return std::make_unique<JsonReporter>();
    if (Output::terminalColumns() > 0)
        return std::make_unique<TerminalReporter>();
    return std::make_unique<PlainReporter>();
}

void Reporter::printFailure(const ConversionItem &item, const Failure &failure)
{
    const bool isDestination = failure.code == ExitCode::DestinationRefused;
    Output::failure(isDestination ? item.destPath : item.input, failure);
}
