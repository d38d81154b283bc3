// SPDX-License-Identifier: MIT
#include "support/MainQueue.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>

namespace MainQueue {

void post(std::function<void()> block)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::move(block), Qt::QueuedConnection);
}

void postAfter(std::chrono::nanoseconds delay, std::function<void()> block)
{
    using namespace std::chrono;
    // The library counts a timer's milliseconds in 32 bits.
    const auto wait = std::clamp(ceil<milliseconds>(delay), 0ms, milliseconds(days(24)));
    post([wait, block = std::move(block)] {
        QTimer::singleShot(wait, Qt::PreciseTimer, QCoreApplication::instance(), block);
    });
}

}
