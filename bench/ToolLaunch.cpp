// SPDX-License-Identifier: MIT
// What the sandbox adds to a run: the same small tool, started as the engine starts it and without
// the sandbox, alternating. Usage: bench-tool-launch FOLDER. Prints the medians of both in
// milliseconds.
#include "engine/Task.h"
#include "support/Bundle.h"
#include "support/Console.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 301;

double median(std::vector<qint64> nanoseconds)
{
    std::sort(nanoseconds.begin(), nanoseconds.end());
    return static_cast<double>(nanoseconds[nanoseconds.size() / 2]) / 1e6;
}

qint64 confinedRun(const QString &tool, const QString &folder)
{
    QElapsedTimer clock;
    clock.start();
    Task task;
    task.setLaunchPath(tool);
    task.setAccess({ { tool }, { folder } });
    task.tryLaunch();
    (void)task.readDataToEndOfFile();
    return clock.nsecsElapsed();
}

qint64 plainRun(const QString &tool)
{
    QElapsedTimer clock;
    clock.start();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setChildProcessModifier([] {});
    process.start(tool, {});
    process.waitForFinished();
    return clock.nsecsElapsed();
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Console::setSink([](const QString &) {});
    const QString folder = QCoreApplication::arguments().at(1);
    const QString tool = Bundle::main().bundlePath() + u"/Contents/ffmpeg/ffmpeg"_s;
    std::vector<qint64> confined;
    std::vector<qint64> plain;
    for (int round = 0; round < rounds; ++round) {
        confined.push_back(confinedRun(tool, folder));
        plain.push_back(plainRun(tool));
    }
    std::printf("%.2f %.2f\n", median(confined), median(plain));
    return 0;
}
