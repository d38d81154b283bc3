// SPDX-License-Identifier: MIT
// Put in front of a tool by the dynamic linker: when all libraries of the tool are loaded, and
// before its own code runs, the tool waits for its arguments. The last two that it was started with
// make room for them, so that they are seen in the list of processes as usual.
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using Main = int (*)(int, char **, char **);
using Hook = void (*)();
using StartMain = int (*)(Main, int, char **, Hook, Hook, Hook, void *);

/// What the starting program has left in the environment; see LateArguments.
constexpr const char *channelName = "VIDEO_CONVERTER_ARGUMENTS_FD";

// Not by unsetenv(): a shell has one of its own, which knows nothing of the environment so early.
void removeFromEnvironment(const char *name)
{
    const std::size_t length = std::strlen(name);
    char **kept = environ;
    for (char **each = environ; *each; ++each) {
        if (std::strncmp(*each, name, length) != 0 || (*each)[length] != '=')
            *kept++ = *each;
    }
    *kept = nullptr;
}

// Only the tool itself was started with the room, not what a script before it runs with the same
// environment. Where the script has added arguments of its own, the room is not at the end.
bool endsWithRoom(int argc, char **argv)
{
    if (argc < 3)
        return false;
    const char *placeholder = argv[argc - 2];
    const char *dots = argv[argc - 1];
    return std::strcmp(placeholder, "-version") == 0 && dots == placeholder + sizeof "-version"
        && std::strspn(dots, ".") == std::strlen(dots);
}

// Reads to the end; the arguments are separated by zeros. What is left of the room is cleared.
std::size_t receive(int channel, char *room, std::size_t size)
{
    const char ready = 0;
    ssize_t got = ::send(channel, &ready, 1, MSG_NOSIGNAL);
    std::size_t length = 0;
    while (got > 0 && length < size) {
        got = ::read(channel, room + length, size - length);
        length += got > 0 ? static_cast<std::size_t>(got) : 0;
    }
    ::close(channel);
    // Who started the tool wants it no more.
    if (length == 0)
        std::_Exit(EXIT_FAILURE);
    std::memset(room + length, 0, size - length);
    return length;
}

}

// No other thread runs yet.
// NOLINTBEGIN(concurrency-mt-unsafe)

// The C library's own function calls main() and is looked up by name, so this one is found first.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" __attribute__((visibility("default"))) int __libc_start_main(
    Main main, int argc, char **argv, Hook init, Hook fini, Hook linkerFini, void *stackEnd)
{
    const auto start = reinterpret_cast<StartMain>(::dlsym(RTLD_NEXT, "__libc_start_main"));
    const char *channel = std::getenv(channelName);
    if (!channel || !endsWithRoom(argc, argv))
        return start(main, argc, argv, init, fini, linkerFini, stackEnd);
    char *room = argv[argc - 2];
    const std::size_t size
        = static_cast<std::size_t>(argv[argc - 1] - room) + std::strlen(argv[argc - 1]);
    const std::size_t length = receive(std::atoi(channel), room, size);
    removeFromEnvironment(channelName);
    removeFromEnvironment("LD_PRELOAD");
    // One pointer for each byte is more than enough.
    auto **arguments = static_cast<char **>(std::calloc(length + size_t(argc), sizeof(char *)));
    int count = 0;
    for (; count < argc - 2; ++count)
        arguments[count] = argv[count];
    for (char *next = room; next < room + length; next += std::strlen(next) + 1)
        arguments[count++] = next;
    return start(main, count, arguments, init, fini, linkerFini, stackEnd);
}

// NOLINTEND(concurrency-mt-unsafe)
