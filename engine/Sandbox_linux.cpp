// SPDX-License-Identifier: MIT
#include "engine/Sandbox.h"
#include "support/Bundle.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Rights that are newer than this system's kernel headers.
constexpr quint64 truncateFile = 1ULL << 14;
constexpr quint64 deviceControl = 1ULL << 15;
constexpr quint64 scopeAbstractSocketsAndSignals = 3;

struct RulesetAttributes {
    quint64 filesystem;
    quint64 network;
    quint64 scoped;
};

constexpr quint64 readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr quint64 readTree = readFile | LANDLOCK_ACCESS_FS_READ_DIR | LANDLOCK_ACCESS_FS_EXECUTE;
constexpr quint64 writeFile = LANDLOCK_ACCESS_FS_WRITE_FILE | truncateFile;
constexpr quint64 writeFolder = writeFile | LANDLOCK_ACCESS_FS_MAKE_REG;
constexpr quint64 firstRights = (1ULL << 13) - 1;

struct SystemRow {
    QStringView path;
    quint64 rights;
};

constexpr std::array systemRows{
    SystemRow{ u"/usr", readTree },
    SystemRow{ u"/lib", readTree },
    SystemRow{ u"/lib64", readTree },
    SystemRow{ u"/opt", readTree },
    SystemRow{ u"/nix/store", readTree },
    SystemRow{ u"/etc/ld.so.cache", readFile },
    SystemRow{ u"/etc/ld.so.preload", readFile },
    SystemRow{ u"/etc/localtime", readFile },
    SystemRow{ u"/etc/fonts", readTree },
    SystemRow{ u"/var/cache/fontconfig", readTree },
    SystemRow{ u"/proc/cpuinfo", readFile },
    SystemRow{ u"/proc/meminfo", readFile },
    SystemRow{ u"/sys/devices/system", readTree },
    SystemRow{ u"/dev/null", readFile | LANDLOCK_ACCESS_FS_WRITE_FILE },
    SystemRow{ u"/dev/zero", readFile },
    SystemRow{ u"/dev/urandom", readFile },
};

// Rights that the running kernel can restrict; 0 when it has none.
quint64 handledRights(long version)
{
    if (version < 1)
        return 0;
    quint64 rights = firstRights;
    if (version >= 2)
        rights |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3)
        rights |= truncateFile;
    if (version >= 5)
        rights |= deviceControl;
    return rights;
}

void grant(int ruleset, const QString &path, quint64 rights)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
    if (fd < 0)
        return;
    const landlock_path_beneath_attr rule{ rights, fd };
    ::syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    ::close(fd);
}

#if defined(__x86_64__)
constexpr quint32 nativeArchitecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr quint32 nativeArchitecture = AUDIT_ARCH_AARCH64;
#else
constexpr quint32 nativeArchitecture = 0;
#endif

constexpr sock_filter load(std::size_t offset)
{
    return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<quint32>(offset));
}

// Skips `skipped` rows when the loaded value equals this one.
constexpr sock_filter skipWhenEqual(long value, quint8 skipped)
{
    return BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<quint32>(value), skipped, 0);
}

// Refuses sockets, also through an I/O ring or another architecture's system calls.
constexpr std::array socketFilter{
    load(offsetof(seccomp_data, arch)),
    skipWhenEqual(nativeArchitecture, 1),
    sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EACCES),
    load(offsetof(seccomp_data, nr)),
    skipWhenEqual(SYS_socket, 3),
    skipWhenEqual(SYS_io_uring_setup, 2),
    sock_filter BPF_JUMP(BPF_JMP | BPF_JGE | BPF_K, 0x40000000, 1, 0),
    sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EACCES),
};

void refuseSockets()
{
    if (nativeArchitecture == 0)
        return;
    std::array filter = socketFilter;
    const sock_fprog program{ static_cast<unsigned short>(filter.size()), filter.data() };
    ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

}

Sandbox::Sandbox(const QString &toolPath, const ToolAccess &access)
{
    const long version
        = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    const quint64 handled = handledRights(version);
    if (handled == 0)
        return;
    const RulesetAttributes attributes{ handled, 0,
        version >= 6 ? scopeAbstractSocketsAndSignals : 0 };
    const std::size_t known = version >= 6 ? sizeof attributes : sizeof attributes.filesystem;
    m_ruleset = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, known, 0));
    if (m_ruleset < 0)
        return;
    for (const SystemRow &row : systemRows)
        grant(m_ruleset, row.path.toString(), row.rights & handled);
    grant(m_ruleset, Bundle::main().bundlePath(), readTree & handled);
    grant(m_ruleset, QFileInfo(QFileInfo(toolPath).canonicalFilePath()).path(), readTree & handled);
    for (const QString &file : access.readableFiles)
        grant(m_ruleset, file, readFile & handled);
    for (const QString &folder : access.writableFolders)
        grant(m_ruleset, folder, writeFolder & handled);
}

Sandbox::~Sandbox()
{
    if (m_ruleset >= 0)
        ::close(m_ruleset);
}

void Sandbox::enter() const
{
    const rlimit noCore{ 0, 0 };
    ::setrlimit(RLIMIT_CORE, &noCore);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    if (m_ruleset >= 0 && ::syscall(SYS_landlock_restrict_self, m_ruleset, 0) != 0)
        ::_exit(126);
    refuseSockets();
}
