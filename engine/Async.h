// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class SerialQueue;

/// Moves work to the main queue and to background queues. Every operation returns at once.
/// Thread: any.
class Async {
public:
    using Block = std::function<void()>;

    Async() = delete;

    /// Submits to the main queue.
    static void async(Block block);
    /// Submits to a given queue.
    static void async(const std::shared_ptr<SerialQueue> &queue, Block block);
    /// Submits to a queue of the block's own, so that background jobs run side by side.
    static void background(Block block);
    /// Submits to the main queue after a number of seconds, never inline.
    /// Errors: a delay whose nanoseconds do not fit in 64 bits stops the program.
    static void delay(double seconds, Block closure);
    /// A new serial queue, which lives as long as something holds it or waits in it.
    [[nodiscard]] static std::shared_ptr<SerialQueue> backgroundSerialQueue();
};
