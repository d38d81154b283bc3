// SPDX-License-Identifier: MIT
#include "support/MainQueue.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <deque>
#include <mutex>

namespace {

std::mutex blocksMutex;

std::deque<std::function<void()>> &blocks()
{
    static std::deque<std::function<void()>> queue;
    return queue;
}

void runNext()
{
    std::function<void()> block;
    {
        const std::lock_guard lock(blocksMutex);
        if (blocks().empty())
            return;
        block = std::move(blocks().front());
        blocks().pop_front();
    }
    block();
}

// The library counts a timer's milliseconds in 32 bits.
constexpr std::chrono::milliseconds longestTimer = std::chrono::hours(24);

void runAfter(std::chrono::milliseconds wait, const std::function<void()> &block)
{
    const std::chrono::milliseconds step = std::min(wait, longestTimer);
    QTimer::singleShot(step, Qt::PreciseTimer, QCoreApplication::instance(), [wait, step, block] {
        if (wait > step)
            runAfter(wait - step, block);
        else
            block();
    });
}

// What the blocks hold may need the application object, so they must not live on until the statics
// go, nor run in a later application.
void dropBlocks()
{
    std::deque<std::function<void()>> dropped;
    const std::lock_guard lock(blocksMutex);
    dropped.swap(blocks());
}

void dropBlocksAtEnd() { qAddPostRoutine(dropBlocks); }

Q_COREAPP_STARTUP_FUNCTION(dropBlocksAtEnd)

}

namespace MainQueue {

void post(std::function<void()> block)
{
    // The blocks are handed over under a mutex of ours and the event carries nothing, which keeps
    // the hand-over visible to the thread sanitizer. Posting while the lock is held keeps events
    // and blocks in one order.
    const std::lock_guard lock(blocksMutex);
    if (!QCoreApplication::instance())
        return;
    blocks().push_back(std::move(block));
    QMetaObject::invokeMethod(QCoreApplication::instance(), runNext, Qt::QueuedConnection);
}

void postAfter(std::chrono::nanoseconds delay, std::function<void()> block)
{
    using std::chrono::milliseconds;
    const auto wait
        = std::chrono::ceil<milliseconds>(std::max(delay, std::chrono::nanoseconds::zero()));
    post([wait, block = std::move(block)] { runAfter(wait, block); });
}

bool isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

}
