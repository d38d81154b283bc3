// SPDX-License-Identifier: MIT
#include "engine/Sandbox.h"
#include "support/Bundle.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sched.h>
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
constexpr quint64 firstRights = (1ULL << 13) - 1;

constexpr auto systemTrees = std::to_array<QStringView>({ u"/usr", u"/lib", u"/lib64", u"/opt",
    u"/nix/store", u"/gnu/store", u"/home/linuxbrew/.linuxbrew", u"/etc/fonts",
    u"/var/cache/fontconfig", u"/sys/devices/system" });
constexpr auto systemFiles = std::to_array<QStringView>({ u"/etc/ld.so.cache", u"/etc/localtime",
    u"/proc/cpuinfo", u"/proc/meminfo", u"/dev/zero", u"/dev/urandom" });

// Rights that the running kernel can restrict; 0 when it has none.
quint64 handledRights(long version)
{
    if (version < 1)
        return 0;
    return firstRights | (version >= 2 ? LANDLOCK_ACCESS_FS_REFER : 0)
        | (version >= 3 ? truncateFile : 0) | (version >= 5 ? deviceControl : 0);
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

#ifndef SYS_fchmodat2
constexpr long SYS_fchmodat2 = 452;
#endif

// What the file rules leave open, other processes, and ways around this filter.
// clang-format off
constexpr auto refusedCalls = std::to_array<long>({
#ifdef SYS_chmod
    SYS_chmod, SYS_chown, SYS_lchown,
#endif
    SYS_truncate, SYS_fchmod, SYS_fchmodat, SYS_fchmodat2, SYS_fchown, SYS_fchownat,
    SYS_setxattr, SYS_lsetxattr, SYS_fsetxattr,
    SYS_removexattr, SYS_lremovexattr, SYS_fremovexattr,
    SYS_ptrace, SYS_process_vm_readv, SYS_process_vm_writev,
    SYS_pidfd_open, SYS_pidfd_send_signal, SYS_socket, SYS_io_uring_setup,
});
// clang-format on
constexpr auto signallingCalls
    = std::to_array<long>({ SYS_kill, SYS_tgkill, SYS_rt_sigqueueinfo, SYS_rt_tgsigqueueinfo });

// The rules for a process's system calls. Nothing is allocated: it is made between fork and exec.
class CallFilter {
public:
    CallFilter()
    {
        load(offsetof(seccomp_data, arch));
        jump(BPF_JEQ, nativeArchitecture, 1, 0);
        end(EACCES);
        load(offsetof(seccomp_data, nr));
        jump(BPF_JGE, 0x40000000, 0, 1);
        end(EACCES);
    }
    void refuse(long call, int error = EACCES)
    {
        jump(BPF_JEQ, call, 0, 1);
        end(error);
    }
    // Allows the call where the bits of an argument have, or have not, a value.
    void restrict(long call, unsigned argument, quint32 bits, quint32 value, bool mustEqual)
    {
        jump(BPF_JEQ, call, 0, 5);
        load(offsetof(seccomp_data, args) + argument * sizeof(quint64));
        add(BPF_STMT(BPF_ALU | BPF_AND | BPF_K, bits));
        jump(BPF_JEQ, value, mustEqual ? 1 : 0, mustEqual ? 0 : 1);
        end(EPERM);
        end(0);
    }
    void enter()
    {
        end(0);
        const sock_fprog program{ m_size, m_rows.data() };
        ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
    }

private:
    void add(sock_filter row) { m_rows.at(m_size++) = row; }
    void load(std::size_t offset)
    {
        add(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<quint32>(offset)));
    }
    void jump(unsigned how, long value, quint8 whenTrue, quint8 whenFalse)
    {
        add(BPF_JUMP(BPF_JMP | how | BPF_K, static_cast<quint32>(value), whenTrue, whenFalse));
    }
    void end(int error)
    {
        add(BPF_STMT(BPF_RET | BPF_K,
            error == 0 ? SECCOMP_RET_ALLOW : SECCOMP_RET_ERRNO | static_cast<quint32>(error)));
    }

    std::array<sock_filter, 128> m_rows{};
    unsigned short m_size = 0;
};

void lowerLimit(__rlimit_resource resource, rlim_t most)
{
    rlimit limit{};
    if (::getrlimit(resource, &limit) != 0)
        return;
    const rlim_t lowered = std::min(limit.rlim_cur, most);
    limit = { lowered, lowered };
    ::setrlimit(resource, &limit);
}

// 8K video with 64 threads takes 34 gigabytes of addresses, in 10 bits about twice that.
constexpr rlim_t mostAddresses = rlim_t{ 128 } << 30;
constexpr rlim_t mostDescriptors = 4096;
// The limit counts the user's other processes and threads too.
constexpr unsigned long furtherProcesses = 4096;

// "0.00 0.01 0.05 1/234 5678": 234 is the number of all processes and threads.
unsigned long processCount()
{
    QFile file(u"/proc/loadavg"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(3).split('/').value(1).toULong();
}

bool isScript(const QString &toolPath)
{
    QFile file(toolPath);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "#!";
}

// Libraries of the user's, and those in the tool's own prefix.
QStringList libraryPaths(const QString &toolFolder)
{
    return QStringList{ toolFolder, toolFolder + u"/../lib"_s, toolFolder + u"/../lib64"_s }
    + qEnvironmentVariable("LD_LIBRARY_PATH").split(u':', Qt::SkipEmptyParts);
}

}

Sandbox::Sandbox(const QString &toolPath, const ToolAccess &access)
    : m_isScript(isScript(toolPath))
{
    if (const unsigned long count = processCount(); count > 0)
        m_mostProcesses = count + furtherProcesses;
    const long version
        = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    const quint64 handled = handledRights(version);
    if (handled == 0)
        return;
    m_scopesSignals = version >= 6;
    const RulesetAttributes attributes{ handled, 0,
        m_scopesSignals ? scopeAbstractSocketsAndSignals : 0 };
    const std::size_t known = m_scopesSignals ? sizeof attributes : sizeof attributes.filesystem;
    m_ruleset = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, known, 0));
    if (m_ruleset < 0)
        return;
    for (const QStringView tree : systemTrees)
        grant(m_ruleset, tree.toString(), readTree & handled);
    for (const QStringView file : systemFiles)
        grant(m_ruleset, file.toString(), readFile & handled);
    grant(m_ruleset, u"/dev/null"_s, readFile | LANDLOCK_ACCESS_FS_WRITE_FILE);
    grant(m_ruleset, Bundle::main().bundlePath(), readTree & handled);
    const QString toolFolder = QFileInfo(QFileInfo(toolPath).canonicalFilePath()).path();
    for (const QString &path : libraryPaths(toolFolder) + access.readable)
        grant(m_ruleset, path,
            (QFileInfo(path).isDir() ? readTree : readFile | LANDLOCK_ACCESS_FS_EXECUTE) & handled);
    for (const QString &file : access.writable)
        grant(m_ruleset, file, (readFile | writeFile) & handled);
}

Sandbox::~Sandbox()
{
    if (m_ruleset >= 0)
        ::close(m_ruleset);
}

void Sandbox::enter() const
{
    lowerLimit(RLIMIT_CORE, 0);
    lowerLimit(RLIMIT_AS, mostAddresses);
    lowerLimit(RLIMIT_NOFILE, mostDescriptors);
    if (m_mostProcesses > 0)
        lowerLimit(RLIMIT_NPROC, m_mostProcesses);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    if (m_ruleset >= 0 && ::syscall(SYS_landlock_restrict_self, m_ruleset, 0) != 0)
        ::_exit(126);
    if (nativeArchitecture != 0)
        refuseCalls();
}

void Sandbox::refuseCalls() const
{
    CallFilter filter;
    for (const long call : refusedCalls)
        filter.refuse(call);
    // Older kernels let a file be emptied by opening it for reading.
    constexpr quint32 openBits = O_ACCMODE | O_TRUNC;
    filter.restrict(SYS_openat, 2, openBits, O_TRUNC, false);
#ifdef SYS_open
    filter.restrict(SYS_open, 1, openBits, O_TRUNC, false);
#endif
    filter.refuse(SYS_openat2, ENOSYS);
    const auto self = static_cast<quint32>(::getpid());
    filter.restrict(SYS_prlimit64, 0, ~0U, 0, true);
    if (!m_isScript || !m_scopesSignals) {
        for (const long call : signallingCalls)
            filter.restrict(call, 0, ~0U, self, true);
        filter.refuse(SYS_tkill);
    }
    if (!m_isScript) {
        filter.restrict(SYS_clone, 0, CLONE_THREAD, CLONE_THREAD, true);
        // It takes its flags in memory; the C library goes back to the older call.
        filter.refuse(SYS_clone3, ENOSYS);
#ifdef SYS_fork
        filter.refuse(SYS_fork);
        filter.refuse(SYS_vfork);
#endif
    }
    filter.enter();
}
