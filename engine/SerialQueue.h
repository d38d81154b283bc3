// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>

/// Runs blocks one after the other in the background, also when nobody holds the queue any more.
/// Thread: any.
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
