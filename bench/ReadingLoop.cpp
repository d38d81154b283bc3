// SPDX-License-Identifier: MIT
// Processor time that the driving process spends on the reports of a tool, without what the run
// costs anyway. The tool beside it in the bundle is the fake one.
#include "engine/Async.h"
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "support/Console.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

double processorMicroseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

/// Processor microseconds of a run whose tool writes that many reports, and how many pieces they
/// were read in.
std::pair<double, int> run(int reports)
{
    const VideoConstraints mp4{ VideoDimensionsConstraints::unlimited(),
        VideoQualityConstraints::unchanged, ConversionFormat::mp4, {} };
    // The pauses let the shorter ones be read one by one.
    const QByteArray script = QByteArray::number(reports) + (reports > 1000 ? ":60" : ":200");
    qputenv("FAKE_TOOL_SCRIPT", "print:Duration: 00:01:40.00, start: 0\\n|reports:" + script);
    const QTemporaryDir folder;
    int seen = 0;
    const double before = processorMicroseconds();
    const auto progress = FFMPEG::convertFile(
        u"/dev/zero"_s, folder.filePath(u"out.mp4"_s), mp4, JSON(), [](const auto &) {});
    progress->addObserver(Progress::Key::CompletedUnitCount, &seen, [&](Progress::Key) { ++seen; });
    SerialQueue::waitForAll();
    return { processorMicroseconds() - before, seen };
}

/// A single short run says nothing: what starting a tool costs differs by more than ten reports do.
std::pair<double, int> median(int reports)
{
    std::vector<std::pair<double, int>> runs(reports > 1000 ? 1 : 31);
    for (auto &each : runs)
        each = run(reports);
    std::ranges::sort(runs);
    return runs[runs.size() / 2];
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Console::setSink([](const QString &) {});
    run(0);
    const double empty = median(0).first;
    for (const int reports : { 10, 1000, 100'000 }) {
        const auto [microseconds, seen] = median(reports);
        if (seen == 0)
            qFatal("No report was read");
        std::printf("%d %d %.2f\n", reports, seen, (microseconds - empty) / reports);
    }
    return 0;
}
