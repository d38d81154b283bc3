// SPDX-License-Identifier: MIT
// Crashes in the way that its argument names, after starting the crash reporter.
#include "crash/Crash.h"

#include <QCoreApplication>

#include <atomic>
#include <barrier>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <link.h>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <unordered_map>

// NOLINTNEXTLINE(bugprone-reserved-identifier): the C library's own name
extern "C" void *__libc_malloc(std::size_t size);

namespace {

std::atomic<int *> nowhere = nullptr;
std::atomic_bool hasCrashed = false;

void crashSegv()
{
    hasCrashed = true;
    *nowhere = 1;
}

void crashTrap()
{
    volatile int number = INT_MAX;
    number = number + 1;
}

void crashException() { throw std::runtime_error("/home/user/Secret Video.mp4"); }

// Ends in bad memory, or at the end of the stack when that comes first.
int crashDeep(int depth) { return depth > 0 ? crashDeep(depth - 1) + 1 : (crashSegv(), 0); }

void crashThreads()
{
    std::barrier barrier(4);
    const auto crash = [&barrier] {
        barrier.arrive_and_wait();
        crashDeep(200); // A long report leaves the others time to crash meanwhile.
    };
    const std::jthread threads[]{ std::jthread(crash), std::jthread(crash), std::jthread(crash),
        std::jthread(crash) };
}

// Another thread holds for ever what the unwinder waits for.
void crashLocked()
{
    static std::atomic_bool isLocked = false;
    const auto lock = [](dl_phdr_info *, std::size_t, void *) {
        isLocked = true;
        return ::pause();
    };
    const std::jthread holder(::dl_iterate_phdr, lock, nullptr);
    while (!isLocked) { }
    crashSegv();
}

// The crash of a child between fork and exec is not the program's.
void crashChild()
{
    if (::fork() == 0)
        crashSegv();
    int status = 0;
    ::wait(&status);
    ::_exit(WIFSIGNALED(status) ? 7 : 0);
}

}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
// As if the crash had come while the allocator's lock was held.
extern "C" void *malloc(std::size_t size)
{
    while (hasCrashed) { }
    return __libc_malloc(size);
}
#endif

int main(int argc, char **argv)
{
    const std::string_view way = argv[1];
    if (way == "earlier")
        ::signal(SIGSEGV, [](int) { ::_exit(9); });
    CrashReporter::start();
    const QCoreApplication application(argc, argv);
    const std::unordered_map<std::string_view, void (*)()> ways{ { "segv", crashSegv },
        { "trap", crashTrap }, { "exception", crashException },
        { "stack", [] { crashDeep(INT_MAX); } }, { "threads", crashThreads },
        { "locked", crashLocked }, { "child", crashChild }, { "earlier", crashSegv } };
    ways.at(way)();
}
