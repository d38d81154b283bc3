// SPDX-License-Identifier: MIT
#include "support/Interruption.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

std::atomic<int> firstSignal = 0;
// A signal handler may do no more than write to a pipe; the event loop reads it.
std::array<int, 2> wakeUp{ -1, -1 };

// Ignored ones stay so: nohup and a script's background jobs leave them like that.
void watch(int signalNumber)
{
    struct sigaction action { };
    if (::sigaction(signalNumber, nullptr, &action) == 0 && action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = Interruption::request;
    ::sigemptyset(&action.sa_mask);
    // No SA_RESTART: a write to a reader that does not read must end too.
    ::sigaction(signalNumber, &action, nullptr);
}

}

Interruption::Interruption()
{
    if (::pipe(wakeUp.data()) != 0)
        qFatal("No pipe for signals");
    for (const int end : wakeUp) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    auto *notifier = new QSocketNotifier(wakeUp[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (::read(wakeUp[0], bytes.data(), bytes.size()) > 0) { }
        Q_EMIT arrived();
    });
    ::signal(SIGPIPE, SIG_IGN);
    for (const int signalNumber : { SIGINT, SIGTERM, SIGHUP, SIGQUIT })
        watch(signalNumber);
}

int Interruption::signal() { return firstSignal; }

void Interruption::request(int signalNumber)
{
    const int error = errno;
    int none = 0;
    firstSignal.compare_exchange_strong(none, signalNumber);
    const char byte = 0;
    // A full pipe wakes the loop as well.
    [[maybe_unused]] const ssize_t written = ::write(wakeUp[1], &byte, 1);
    errno = error;
}
