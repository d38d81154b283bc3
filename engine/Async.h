// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class SerialQueue;

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
