// SPDX-License-Identifier: MIT
#include "cli/arguments/Help.h"

#include "support/Localized.h"

namespace Help {

QString general()
{
    return localized(QT_TRANSLATE_NOOP3("Localizable",
        "Usage: video-converter-cli COMMAND [OPTIONS]\n"
        "Converts videos.\n"
        "\n"
        "  formats   lists the outputs that --to takes\n"
        "  probe     describes a video\n"
        "  plan      prints the tool's command line without running it\n"
        "  convert   converts videos\n"
        "\n"
        "video-converter-cli COMMAND --help explains a command. All commands take:\n"
        "  --json      prints JSON\n"
        "  --verbose   prints diagnostics and the tool's full output to standard error\n"
        "  -h, --help  prints this help\n"
        "  --version   prints the version\n"
        "\n"
        "Exit status: 0 done, 1 a conversion failed, 2 wrong usage, 3 video refused, 4 "
        "destination\n"
        "refused, 5 the tools are missing, 128 + N stopped by signal N (130 after Ctrl-C).\n"
        "With several videos, the first one that was not converted decides.",
        "Help of the headless command; words in capitals stand for what the user types"));
}

QString of(Verb verb)
{
    switch (verb) {
    case Verb::Formats:
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "Usage: video-converter-cli formats [--json]\n"
            "Lists the outputs that --to takes: devices, formats and MP4 qualities.",
            "Help of the headless command"));
    case Verb::Probe:
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "Usage: video-converter-cli probe FILE [--json]\n"
            "Describes a video. With --json: everything that the tool reports (info), its length\n"
            "(duration, seconds) and the size of its cover picture or null (cover).",
            "Help of the headless command"));
    case Verb::Plan:
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "Usage: video-converter-cli plan --to NAME FILE OUT [--json]\n"
            "       video-converter-cli plan --to NAME --info JSONFILE [--json]\n"
            "Prints the tool's command line, quoted for a shell, without running it.\n"
            "\n"
            "  --to NAME        the output, one of those that 'formats' lists, or all\n"
            "  --info JSONFILE  takes the video's description from a file made by 'probe --json'\n"
            "                   (- for standard input) and prints only the arguments that depend\n"
            "                   on it\n"
            "  --json           prints one object: name of the output, list of arguments",
            "Help of the headless command"));
    case Verb::Convert:
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "Usage: video-converter-cli convert --to NAME FILE -o OUT\n"
            "       video-converter-cli convert --to NAME FILE... -d FOLDER\n"
            "Converts videos, one after the other. Ctrl-C cancels and leaves no unfinished file.\n"
            "\n"
            "  --to NAME            the output, one of those that 'formats' lists\n"
            "  -o, --output OUT     the file to write\n"
            "  -d, --folder FOLDER  the folder to write to; the files get the videos' names\n"
            "  --overwrite          replaces files that exist; a video itself is never replaced\n"
            "  --json               prints one JSON object a line\n"
            "\n"
            "A name that begins with a dash goes after --, as in: convert --to GIF -o a.gif -- "
            "-a.mov",
            "Help of the headless command"));
    }
    return {};
}

}
