// SPDX-License-Identifier: MIT
// Processor time that the driving process spends on the reports of a tool, without what the run
// costs anyway. The tool beside it in the bundle is the fake one.
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/SerialQueue.h"
#include "support/Console.h"

#include <QCoreApplication>

#include <cstdio>
#include <ctime>
#include <utility>

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
    int seen = 0;
    const double before = processorMicroseconds();
    const auto progress
        = FFMPEG::convertFile(u"/dev/zero"_s, u"/dev/null"_s, mp4, JSON(), [](const auto &) {});
    progress->addObserver(Progress::Key::CompletedUnitCount, &seen, [&](Progress::Key) { ++seen; });
    SerialQueue::waitForAll();
    return { processorMicroseconds() - before, seen };
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Console::setSink([](const QString &) {});
    run(0);
    const double empty = run(0).first;
    for (const int reports : { 10, 1000, 100'000 }) {
        const auto [microseconds, seen] = run(reports);
        std::printf("%d %d %.2f\n", reports, seen, (microseconds - empty) / reports);
    }
    return 0;
}
