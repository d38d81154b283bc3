// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Outcome.h"

#include <QByteArray>
#include <QtGlobal>

#include <functional>
#include <initializer_list>
#include <mutex>
#include <utility>
#include <vector>

/// How far a run is, and the way to stop it. Units: whole seconds of media; the total is negative
/// while the length is unknown. Thread: any. Observers run on the thread that writes, the
/// cancellation handler on the one that cancels, both without a lock held.
class Progress {
public:
    enum class Kind { Unspecified, File };
    enum class Key { FractionCompleted, CompletedUnitCount };
    /// The address of anything that outlives the registration.
    using Context = const void *;
    using Observer = std::function<void(Key)>;

    explicit Progress(qint64 totalUnitCount);
    Q_DISABLE_COPY_MOVE(Progress)

    [[nodiscard]] Kind kind() const { return read(m_kind); }
    void setKind(Kind kind) { write(m_kind, kind); }

    [[nodiscard]] qint64 totalUnitCount() const { return read(m_totalUnitCount); }
    void setTotalUnitCount(qint64 count);
    [[nodiscard]] qint64 completedUnitCount() const { return read(m_completedUnitCount); }
    void setCompletedUnitCount(qint64 count);
    [[nodiscard]] double fractionCompleted() const;
    /// How far the tool has said that it is, also while the total is unknown.
    [[nodiscard]] qint64 position() const { return read(m_position); }
    void setPosition(qint64 seconds) { write(m_position, seconds); }
    [[nodiscard]] bool isIndeterminate() const { return totalUnitCount() < 0; }

    [[nodiscard]] bool isCancelled() const { return read(m_cancellation.happened); }
    void cancel() { fire(m_cancellation); }
    void setCancellationHandler(std::function<void()> handler)
    {
        setHandler(m_cancellation, std::move(handler));
    }

    void addObserver(Key key, Context context, Observer observer);
    void removeObserver(Key key, Context context);

    /// The run is over for good: its tool is gone and its destination kept or removed.
    [[nodiscard]] bool isEnded() const { return read(m_end.happened); }
    void end() { fire(m_end); }
    /// Runs at the end on the run's thread, or at once when the run has ended already.
    void setEndHandler(std::function<void()> handler) { setHandler(m_end, std::move(handler)); }
    /// What a further try does differently while it runs.
    [[nodiscard]] Remedy remedy() const { return read(m_remedy); }
    void setRemedy(Remedy remedy) { write(m_remedy, remedy); }
    /// How the run ended; set before its end is marked or an error is reported.
    [[nodiscard]] Outcome outcome() const { return read(m_outcome); }
    /// Everything that the tool printed; set together with the outcome.
    [[nodiscard]] QByteArray toolOutput() const { return read(m_toolOutput); }
    void setOutcome(Outcome outcome, QByteArray toolOutput);

private:
    /// Happens at most once; its handler runs then, or at once when it is set later.
    struct Event {
        bool happened = false;
        std::function<void()> handler;
    };
    void fire(Event &event);
    void setHandler(Event &event, std::function<void()> handler);
    void notify(std::initializer_list<Key> keys);

    template <class Value> Value read(const Value &member) const
    {
        const std::lock_guard lock(m_mutex);
        return member;
    }
    template <class Value> void write(Value &member, Value value)
    {
        const std::lock_guard lock(m_mutex);
        member = std::move(value);
    }

    mutable std::mutex m_mutex;
    Kind m_kind = Kind::Unspecified;
    qint64 m_totalUnitCount;
    qint64 m_completedUnitCount = 0;
    qint64 m_position = 0;
    Event m_cancellation;
    Event m_end;
    Remedy m_remedy = Remedy::None;
    Outcome m_outcome;
    QByteArray m_toolOutput;
    struct Registration {
        Key key;
        Context context;
        Observer observer;
    };
    std::vector<Registration> m_observers;
};
