// SPDX-License-Identifier: MIT
#include "cli/Batch.h"
#include "cli/Commands.h"
#include "cli/report/Output.h"

ExitCode convertVideos(const CommandLine &line, Interruption &interruption)
{
    const auto reporter = line.json ? jsonReporter() : textReporter(line.quiet);
    const auto refused = [&](const QString &name, const Outcome &outcome) {
        reporter->refused(name, outcome);
        return Output::failure(name, outcome);
    };
    if (!line.folder.isEmpty()) {
        if (const auto refusal = folderRefusal(absolutePath(line.folder)))
            return refused(line.folder, *refusal);
    }
    const auto inputs = inputsOf(line);
    if (const auto *refusal = std::get_if<InputRefusal>(&inputs))
        return refused(refusal->name, refusal->outcome);
    const auto &videos = std::get<std::vector<Input>>(inputs);
    if (videos.empty())
        return ExitCode::Done;
    return Batch(line, conversionItems(line, videos), *reporter).run(interruption);
}
