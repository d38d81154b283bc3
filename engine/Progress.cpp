// SPDX-License-Identifier: MIT
#include "engine/Progress.h"

#include <algorithm>

Progress::Progress(qint64 totalUnitCount)
    : m_totalUnitCount(totalUnitCount)
{
}

void Progress::setTotalUnitCount(qint64 count)
{
    write(m_totalUnitCount, count);
    notify({ Key::FractionCompleted });
}

void Progress::setCompletedUnitCount(qint64 count)
{
    write(m_completedUnitCount, count);
    notify({ Key::FractionCompleted, Key::CompletedUnitCount });
}

double Progress::fractionCompleted() const
{
    const std::lock_guard lock(m_mutex);
    if (m_totalUnitCount <= 0)
        return 0;
    return static_cast<double>(m_completedUnitCount) / static_cast<double>(m_totalUnitCount);
}

void Progress::addObserver(Key key, Context context, Observer observer)
{
    const std::lock_guard lock(m_mutex);
    m_observers.push_back({ key, context, std::move(observer) });
}

void Progress::removeObserver(Key key, Context context)
{
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_observers,
        [&](const Registration &each) { return each.key == key && each.context == context; });
}

void Progress::setOutcome(Outcome outcome, QByteArray toolOutput)
{
    const std::lock_guard lock(m_mutex);
    m_outcome = std::move(outcome);
    m_toolOutput = std::move(toolOutput);
}

void Progress::fire(Event &event)
{
    std::function<void()> handler;
    {
        const std::lock_guard lock(m_mutex);
        if (std::exchange(event.happened, true))
            return;
        handler = std::exchange(event.handler, nullptr);
    }
    if (handler)
        handler();
}

void Progress::setHandler(Event &event, std::function<void()> handler)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!event.happened) {
            event.handler = std::move(handler);
            return;
        }
    }
    if (handler)
        handler();
}

void Progress::notify(std::initializer_list<Key> keys)
{
    for (const Key key : keys) {
        for (const Registration &each : read(m_observers)) {
            if (each.key == key)
                each.observer(key);
        }
    }
}
