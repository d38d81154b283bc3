// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/report/Output.h"
#include "cli/report/Reporter.h"
#include "engine/Async.h"
#include "engine/FFMPEG.h"
#include "engine/StagedList.h"
#include "support/Configuration.h"
#include "support/Interruption.h"
#include "support/Localized.h"
#include "support/StandardInput.h"
#include "support/Translation.h"

#include <QCoreApplication>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// In the order of the verbs.
constexpr std::array commands{ listFormats, probeVideos, planConversions, convertVideos };

ExitCode shown(const UsageText &usage)
{
    const bool isWrong = usage.code != ExitCode::Done;
    isWrong ? Output::errorLine(usage.text) : Output::line(usage.text);
    if (isWrong && QCoreApplication::arguments().contains(u"--json"_s))
        printMisuse(usage.text.section(u'\n', 0, 0).section(u": "_s, 1));
    return usage.code;
}

// Bytes of a name that are no text would name another file.
bool isText(const char *argument)
{
    return QString::fromLocal8Bit(argument).toLocal8Bit() == argument;
}

int exitStatus(ExitCode code)
{
    // What was done before the signal came was done.
    if (code == ExitCode::Cancelled || Interruption::signal() == SIGPIPE)
        return static_cast<int>(ExitCode::Cancelled) + Interruption::signal();
    if (Output::hasFailed())
        Output::errorLine(localized(QT_TRANSLATE_NOOP3("Localizable",
            "The output can't be written.", "Standard output is a file on a full disk")));
    return Output::hasFailed() && code == ExitCode::Done ? 1 : static_cast<int>(code);
}

}

int main(int argc, char *argv[])
{
    StandardInput::setAside();
    Output::takeDiagnostics();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"video-converter-cli"_s);
    QCoreApplication::setApplicationVersion(Configuration::version());

    Translation::install(Bundle::main());

    const auto parsed = parsedCommandLine(QCoreApplication::arguments());
    if (const auto *text = std::get_if<UsageText>(&parsed))
        return exitStatus(shown(*text));
    const auto &line = *std::get_if<CommandLine>(&parsed);
    if (line.verbose)
        Output::showDiagnostics();
    if (const QString destination = line.output + line.folder;
        destination.contains(QChar::ReplacementCharacter)
        && !std::all_of(argv, argv + argc, isText)) {
        const Outcome refusal{ Reason::DestinationNameNotText };
        if (line.verb == Verb::Convert && line.json)
            jsonReporter()->refused(destination, refusal);
        return exitStatus(Output::failure(destination, refusal));
    }
    Async::background(StagedList::removeAbandoned);
    Interruption interruption;
    const ExitCode code = commands.at(static_cast<std::size_t>(line.verb))(line, interruption);
    FFMPEG::shutDown();
    return exitStatus(code);
}
