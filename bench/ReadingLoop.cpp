// SPDX-License-Identifier: MIT
// Processor time that the driving process spends per chunk of tool output. The tool beside it in the bundle is the fake one.
#include "engine/FFMPEG.h"
#include "engine/Progress.h"
#include "engine/SerialQueue.h"
#include "support/Console.h"

#include <QCoreApplication>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

double processorMicroseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Console::setSink([](const QString &) {});
    const VideoConstraints mp4{VideoDimensionsConstraints::unlimited(), VideoQualityConstraints::unchanged,
        ConversionFormat::mp4, {}};
    for (const int chunks : {10, 1000, 100'000}) {
        // The pause lets each report be read on its own.
        const QByteArray reports = QByteArray::number(chunks) + (chunks > 1000 ? ":60" : ":200");
        qputenv("FAKE_TOOL_SCRIPT", "print:Duration: 00:01:40.00, start: 0\\n|reports:" + reports);
        int seen = 0;
        const double before = processorMicroseconds();
        const auto progress = FFMPEG::convertFile(u"/dev/zero"_s, u"/dev/null"_s, mp4, JSON(), [](const auto &) {});
        progress->addObserver(Progress::Key::CompletedUnitCount, &seen, [&](Progress::Key) { ++seen; });
        SerialQueue::waitForAll();
        std::printf("%d %d %.2f\n", chunks, seen, (processorMicroseconds() - before) / std::max(seen, 1));
    }
    return 0;
}
