// SPDX-License-Identifier: MIT
#include "engine/Async.h"

#include "support/MainQueue.h"

#include <QThreadPool>

#include <deque>
#include <limits>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

// Never destroyed: a block may still end while the program does.
QThreadPool &threads()
{
    static QThreadPool &pool = *[] {
        auto *created = new QThreadPool;
        // No queue waits for another one.
        created->setMaxThreadCount(std::numeric_limits<int>::max());
        created->setExpiryTimeout(0);
        return created;
    }();
    return pool;
}

}

struct SerialQueue::State {
    std::mutex mutex;
    std::deque<std::function<void()>> blocks;
    bool running = false;

    std::function<void()> next()
    {
        const std::lock_guard lock(mutex);
        running = !blocks.empty();
        if (!running)
            return {};
        std::function<void()> block = std::move(blocks.front());
        blocks.pop_front();
        return block;
    }
};

SerialQueue::SerialQueue(QString label)
    : m_label(std::move(label))
    , m_state(std::make_shared<State>())
{
}

void SerialQueue::submit(std::function<void()> block)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->blocks.push_back(std::move(block));
    if (std::exchange(m_state->running, true))
        return;
    threads().start([state = m_state] {
        while (const std::function<void()> next = state->next())
            next();
    });
}

void SerialQueue::waitForAll() { threads().waitForDone(); }

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
