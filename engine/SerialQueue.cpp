// SPDX-License-Identifier: MIT
#include "engine/SerialQueue.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <pthread.h>
#include <thread>

namespace {

// Never destroyed: a thread signals its end after the main thread may have seen the count.
struct Threads {
    std::mutex mutex;
    std::condition_variable changed;
    int count = 0;
};

Threads &threads()
{
    static Threads &running = *new Threads;
    return running;
}

void nameThread(const QString &label)
{
    // Linux takes at most 15 bytes.
    const QByteArray name = label.toUtf8().left(15);
#ifdef Q_OS_MACOS
    pthread_setname_np(name.constData());
#else
    pthread_setname_np(pthread_self(), name.constData());
#endif
}

}

struct SerialQueue::State {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::function<void()>> blocks;
    bool started = false;
    bool closed = false;

    void runAll()
    {
        std::unique_lock lock(mutex);
        while (true) {
            changed.wait(lock, [this] { return closed || !blocks.empty(); });
            if (blocks.empty())
                return;
            std::function<void()> block = std::move(blocks.front());
            blocks.pop_front();
            lock.unlock();
            block();
            block = nullptr;
            lock.lock();
        }
    }
};

SerialQueue::SerialQueue(QString label)
    : m_label(std::move(label))
    , m_state(std::make_shared<State>())
{
}

SerialQueue::~SerialQueue()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->closed = true;
    m_state->changed.notify_all();
}

void SerialQueue::submit(std::function<void()> block)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->blocks.push_back(std::move(block));
    m_state->changed.notify_all();
    if (m_state->started)
        return;
    m_state->started = true;
    {
        const std::lock_guard threadsLock(threads().mutex);
        ++threads().count;
    }
    std::thread([state = m_state, label = m_label] {
        nameThread(label);
        state->runAll();
        std::unique_lock threadsLock(threads().mutex);
        --threads().count;
        std::notify_all_at_thread_exit(threads().changed, std::move(threadsLock));
    }).detach();
}

void SerialQueue::waitForAll()
{
    std::unique_lock lock(threads().mutex);
    threads().changed.wait(lock, [] { return threads().count == 0; });
}
