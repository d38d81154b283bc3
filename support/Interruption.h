// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// The wish to stop: a signal, a closed terminal, or a reader of the output that has gone. One
/// object per program, on the main thread.
class Interruption : public QObject {
    Q_OBJECT

public:
    Interruption();

    /// Number of the first signal that came, 0 before. Thread: any.
    [[nodiscard]] static int signal();
    /// Behaves as if a signal had come. Thread: any, also a signal handler.
    static void request(int signalNumber);

Q_SIGNALS:
    void arrived();
};
