// SPDX-License-Identifier: MIT
// Crashes in the way that its argument names, after starting the crash reporter.
#include "crash/Crash.h"

#include <QCoreApplication>

#include <atomic>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <link.h>
#include <mutex>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

// NOLINTNEXTLINE(bugprone-reserved-identifier): the C library's own name
extern "C" void *__libc_malloc(std::size_t size);

using namespace std::string_view_literals;

namespace {

std::atomic<int *> nowhere = nullptr;
std::atomic_bool crashInMalloc = false;
std::mutex mallocMutex;

[[gnu::noinline]] void crashSegv() { *nowhere = 1; }

[[gnu::noinline]] void crashAbort() { std::abort(); }

[[gnu::noinline]] void crashTrap()
{
    volatile int number = INT_MAX;
    number = number + 1;
}

[[gnu::noinline]] void crashFpe()
{
    volatile int zero = 0;
    zero = INT_MAX / zero; // NOLINT(clang-analyzer-core.DivideZero)
}

[[gnu::noinline]] void crashException() { throw std::runtime_error("/home/user/Secret Video.mp4"); }

[[gnu::noinline]] int crashStack(int depth)
{
    volatile char filling[4096] = {};
    filling[0] = static_cast<char>(depth);
    return depth < INT_MAX ? crashStack(depth + 1) + filling[0] : 0;
}

// Its long report leaves the other threads time to crash while it is written.
[[gnu::noinline]] int crashDeep(int depth)
{
    if (depth == 0)
        crashSegv();
    return depth == 0 ? 0 : crashDeep(depth - 1) + 1;
}

[[gnu::noinline]] void crashThreads()
{
    constexpr int count = 4;
    std::atomic_int ready = 0;
    const auto crash = [&ready] {
        ++ready;
        while (ready < count) { }
        crashDeep(200);
    };
    std::vector<std::jthread> threads;
    threads.reserve(count);
    for (int thread = 0; thread < count; ++thread)
        threads.emplace_back(crash);
}

[[gnu::noinline]] void crashMalloc()
{
    crashInMalloc = true;
    std::free(std::malloc(10));
}

// Another thread holds for ever what the unwinder waits for.
[[gnu::noinline]] void crashLocked()
{
    static std::atomic_bool isLocked = false;
    const auto lock = [](dl_phdr_info *, std::size_t, void *) {
        isLocked = true;
        return ::pause();
    };
    std::thread([lock] { ::dl_iterate_phdr(lock, nullptr); }).detach();
    while (!isLocked) { }
    crashSegv();
}

// The crash of a child between fork and exec is not the program's.
[[gnu::noinline]] void crashChild()
{
    const pid_t child = ::fork();
    if (child == 0)
        crashSegv();
    int status = 0;
    ::waitpid(child, &status, 0);
    ::_exit(WIFSIGNALED(status) ? 7 : 0);
}

}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
// An allocator whose lock is held when the crash comes: whoever asks it for memory then waits for
// ever.
extern "C" void *malloc(std::size_t size)
{
    const std::lock_guard lock(mallocMutex);
    if (crashInMalloc)
        crashSegv();
    return __libc_malloc(size);
}
#endif

int main(int argc, char **argv)
{
    if (argc > 1 && argv[1] == "earlier"sv)
        ::signal(SIGSEGV, [](int) { ::_exit(9); });
    CrashReporter::start();
    const QCoreApplication application(argc, argv);
    const std::pair<std::string_view, void (*)()> ways[] = { { "segv", crashSegv },
        { "abort", crashAbort }, { "trap", crashTrap }, { "fpe", crashFpe },
        { "exception", crashException }, { "stack", [] { crashStack(0); } },
        { "threads", crashThreads }, { "malloc", crashMalloc }, { "locked", crashLocked },
        { "child", crashChild }, { "earlier", crashSegv } };
    for (const auto &[name, crash] : ways) {
        if (argc > 1 && name == argv[1])
            crash();
    }
    return 0;
}
