// SPDX-License-Identifier: MIT
#include "engine/Async.h"

#include "engine/SerialQueue.h"
#include "support/MainQueue.h"

using namespace Qt::StringLiterals;

void Async::async(Block block) { MainQueue::post(std::move(block)); }

void Async::async(const std::shared_ptr<SerialQueue> &queue, Block block)
{
    queue->submit(std::move(block));
}

void Async::background(Block block) { async(backgroundSerialQueue(), std::move(block)); }

void Async::delay(double seconds, Block closure)
{
    const auto nanoseconds = static_cast<qint64>(seconds * 1e9);
    MainQueue::postAfter(std::chrono::nanoseconds(nanoseconds), std::move(closure));
}

std::shared_ptr<SerialQueue> Async::backgroundSerialQueue()
{
    return std::make_shared<SerialQueue>(u"ext.serial.backgroundQueue"_s);
}
