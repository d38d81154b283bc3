// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>

/// Runs blocks one by one in the background, also when nobody holds the queue. Thread: any.
class SerialQueue {
public:
    explicit SerialQueue(QString label);
    Q_DISABLE_COPY_MOVE(SerialQueue)

    [[nodiscard]] const QString &label() const { return m_label; }
    void submit(std::function<void()> block);

    /// Waits until no block is left in any queue; the caller makes sure that their blocks end.
    static void waitForAll();

private:
    struct State;

    QString m_label;
    std::shared_ptr<State> m_state;
};

/// Moves work to the main queue and to background queues; returns at once. Thread: any.
class Async {
public:
    using Block = std::function<void()>;

    Async() = delete;

    static void async(Block block);
    static void async(const std::shared_ptr<SerialQueue> &queue, Block block);
    /// In a queue of the block's own, so that background jobs run side by side.
    static void background(Block block);
    /// Errors: a delay whose nanoseconds do not fit in 64 bits stops the program.
    static void delay(double seconds, Block closure);
    [[nodiscard]] static std::shared_ptr<SerialQueue> backgroundSerialQueue();
};
