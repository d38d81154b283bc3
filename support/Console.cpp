// SPDX-License-Identifier: MIT
#include "support/Console.h"

#include <cstdio>
#include <mutex>

namespace {

std::mutex sinkMutex;

Console::Sink &currentSink()
{
    static Console::Sink sink = [](const QString &line) {
        const QByteArray bytes = line.toUtf8() + '\n';
        std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
        std::fflush(stdout);
    };
    return sink;
}

}

namespace Console {

void print(const QString &line)
{
    const std::lock_guard lock(sinkMutex);
    currentSink()(line);
}

void setSink(Sink sink)
{
    const std::lock_guard lock(sinkMutex);
    currentSink() = std::move(sink);
}

}
