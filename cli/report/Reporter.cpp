// SPDX-License-Identifier: MIT
#include "cli/report/Reporter.h"

#include "cli/report/JsonReporter.h"
#include "cli/report/Output.h"
#include "cli/report/ShownText.h"
#include "cli/report/TextReporter.h"

using namespace Qt::StringLiterals;

std::unique_ptr<Reporter> Reporter::suitable(const CommandLine &line)
{
    if (line.json)
        return std::make_unique<JsonReporter>();
    return std::make_unique<TextReporter>(line.quiet);
}

ExitCode Reporter::refused(const QString &name, const Outcome &outcome)
{
    return Output::failure(name, outcome);
}

void Reporter::printFailure(const ConversionItem &item, const Outcome &outcome)
{
    const bool isDestination = kindOf(outcome) == OutcomeKind::DestinationRefused;
    const QString &file = isDestination ? item.destPath : item.input.name;
    Output::failure(file, outcome);
    for (const QString &remark : remarksOn(outcome))
        Output::errorLine(printable(file + u": "_s + remark));
}
