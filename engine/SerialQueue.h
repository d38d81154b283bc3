// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>

/// Runs blocks one after the other on one thread of its own, which begins with the first block and
/// ends when the queue is gone and its last block has run. Thread: any. Errors: a block that
/// throws, or a thread that can't be made, stops the program.
class SerialQueue {
public:
    explicit SerialQueue(QString label);
    ~SerialQueue();
    Q_DISABLE_COPY_MOVE(SerialQueue)

    [[nodiscard]] const QString &label() const { return m_label; }
    void submit(std::function<void()> block);

    /// Waits until no queue's thread is left; the caller makes sure that their blocks end.
    static void waitForAll();

private:
    struct State;

    QString m_label;
    std::shared_ptr<State> m_state;
};
