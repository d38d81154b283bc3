// SPDX-License-Identifier: MIT
#include "engine/Progress.h"

#include <algorithm>

Progress::Progress(qint64 totalUnitCount)
    : m_totalUnitCount(totalUnitCount)
{
}

Progress::Kind Progress::kind() const
{
    const std::lock_guard lock(m_mutex);
    return m_kind;
}

void Progress::setKind(Kind kind)
{
    const std::lock_guard lock(m_mutex);
    m_kind = kind;
}

qint64 Progress::totalUnitCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_totalUnitCount;
}

void Progress::setTotalUnitCount(qint64 count)
{
    {
        const std::lock_guard lock(m_mutex);
        m_totalUnitCount = count;
    }
    notify({ Key::FractionCompleted });
}

qint64 Progress::completedUnitCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_completedUnitCount;
}

void Progress::setCompletedUnitCount(qint64 count)
{
    {
        const std::lock_guard lock(m_mutex);
        m_completedUnitCount = count;
    }
    notify({ Key::FractionCompleted, Key::CompletedUnitCount });
}

double Progress::fractionCompleted() const
{
    const std::lock_guard lock(m_mutex);
    if (m_totalUnitCount <= 0)
        return 0;
    return static_cast<double>(m_completedUnitCount) / static_cast<double>(m_totalUnitCount);
}

bool Progress::isCancelled() const
{
    const std::lock_guard lock(m_mutex);
    return m_cancelled;
}

void Progress::cancel()
{
    std::function<void()> handler;
    {
        const std::lock_guard lock(m_mutex);
        if (m_cancelled)
            return;
        m_cancelled = true;
        handler = std::move(m_cancellationHandler);
        m_cancellationHandler = nullptr;
    }
    if (handler)
        handler();
}

void Progress::setCancellationHandler(std::function<void()> handler)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_cancelled) {
            m_cancellationHandler = std::move(handler);
            return;
        }
    }
    if (handler)
        handler();
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

std::size_t Progress::observerCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_observers.size();
}

bool Progress::isEnded() const
{
    const std::lock_guard lock(m_mutex);
    return m_ended;
}

void Progress::end()
{
    std::function<void()> handler;
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
        handler = std::move(m_endHandler);
        m_endHandler = nullptr;
    }
    if (handler)
        handler();
}

void Progress::setEndHandler(std::function<void()> handler)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_ended) {
            m_endHandler = std::move(handler);
            return;
        }
    }
    if (handler)
        handler();
}

Outcome Progress::outcome() const
{
    const std::lock_guard lock(m_mutex);
    return m_outcome;
}

QByteArray Progress::toolOutput() const
{
    const std::lock_guard lock(m_mutex);
    return m_toolOutput;
}

void Progress::setOutcome(Outcome outcome, QByteArray toolOutput)
{
    const std::lock_guard lock(m_mutex);
    m_outcome = std::move(outcome);
    m_toolOutput = std::move(toolOutput);
}

void Progress::notify(std::initializer_list<Key> keys)
{
    for (const Key key : keys) {
        std::vector<Observer> observers;
        {
            const std::lock_guard lock(m_mutex);
            for (const Registration &each : m_observers) {
                if (each.key == key)
                    observers.push_back(each.observer);
            }
        }
        for (const Observer &observer : observers)
            observer(key);
    }
}
