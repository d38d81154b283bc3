// SPDX-License-Identifier: MIT
#include "cli/Batch.h"
#include "cli/Commands.h"

ExitCode convertVideos(const CommandLine &line, Interruption &interruption)
{
    const auto reporter = Reporter::suitable(line);
    if (!line.folder.isEmpty()) {
        if (const auto refusal = folderRefusal(absolutePath(line.folder)))
            return reporter->refused(line.folder, *refusal);
    }
    const auto inputs = inputsOf(line);
    if (const auto *refusal = std::get_if<InputRefusal>(&inputs))
        return reporter->refused(refusal->name, refusal->outcome);
    const auto &videos = std::get<std::vector<Input>>(inputs);
    if (videos.empty())
        return ExitCode::Done;
    std::vector<ConversionItem> items = conversionItems(line, line.entries.front(), videos);
    return Batch(line, std::move(items), *reporter, interruption).run();
}
