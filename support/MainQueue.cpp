// SPDX-License-Identifier: MIT
#include "support/MainQueue.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

namespace {

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

}

namespace MainQueue {

void post(std::function<void()> block)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::move(block), Qt::QueuedConnection);
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
