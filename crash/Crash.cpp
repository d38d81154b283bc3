// SPDX-License-Identifier: MIT
#include "crash/Crash.h"

#include "crash/ReportWriter.h"
#include "support/Configuration.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QSysInfo>

#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <cxxabi.h>
#include <exception>
#include <fcntl.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <typeinfo>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct Fatal {
    int signal;
    const char *name;
    struct sigaction previous;
};

std::array<Fatal, 6> fatals{ { { SIGSEGV, "SIGSEGV (bad memory access)", {} },
    { SIGBUS, "SIGBUS (bad memory access)", {} }, { SIGILL, "SIGILL (trap stop)", {} },
    { SIGFPE, "SIGFPE (arithmetic)", {} }, { SIGABRT, "SIGABRT (abort)", {} },
    { SIGTRAP, "SIGTRAP (trap stop)", {} } } };
char reportPath[PATH_MAX];
char preamble[1024];
char exceptionName[256];
alignas(16) char alternateStack[std::size_t{ 64 } * 1024];
pid_t owner = 0;
std::terminate_handler previousTerminate = nullptr;

std::atomic<pthread_t> crashedThread{};
siginfo_t crashInfo;

const Fatal &fatalOf(int signal)
{
    return *std::ranges::find(fatals, signal, &Fatal::signal); // Handles no other.
}

// Sends the signal to this thread again, with its first details, for the handler before this one.
void passOn(int signal, siginfo_t *info)
{
    ::sigaction(signal, &fatalOf(signal).previous, nullptr);
#ifdef Q_OS_LINUX
    if (::syscall(SYS_rt_tgsigqueueinfo, ::getpid(), ::gettid(), signal, info) == 0)
        return;
#endif
    ::raise(signal);
}

// For a handler that can't go on: ends the process from within, whatever is blocked.
void giveUp(int)
{
    passOn(crashInfo.si_signo, &crashInfo);
    sigset_t none;
    ::sigemptyset(&none);
    ::pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

// Another thread may hold what the unwinder waits for.
void setWatchdog()
{
    ::signal(SIGALRM, giveUp);
    sigset_t alarm;
    ::sigemptyset(&alarm);
    ::sigaddset(&alarm, SIGALRM);
    ::pthread_sigmask(SIG_UNBLOCK, &alarm, nullptr);
    ::alarm(5);
}

void writeReport(const siginfo_t &info, void *context)
{
    const int descriptor
        = ::open(reportPath, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return;
    ReportWriter report{ descriptor };
    report.text(preamble).text("Reason: ").text(fatalOf(info.si_signo).name).text("\nTime: ");
    report.number(static_cast<std::uintmax_t>(std::time(nullptr))).text(" seconds since 1970\n");
    if (exceptionName[0] != '\0')
        report.text("Uncaught exception: ").text(exceptionName).text("\n");
    report.text("Stack:\n");
    writeStack(report, context);
    report.text("End of report\n");
    ::close(descriptor);
}

extern "C" void onFatalSignal(int signal, siginfo_t *info, void *context)
{
    // A child between fork and exec is not the program, and its crash is no report's business.
    if (::getpid() != owner)
        return passOn(signal, info);
    pthread_t first{};
    if (!crashedThread.compare_exchange_strong(first, ::pthread_self())) {
        while (!::pthread_equal(first, ::pthread_self()))
            ::pause(); // Another thread is writing; it ends the process.
        return giveUp(signal);
    }
    crashInfo = *info;
    setWatchdog();
    writeReport(*info, context);
    passOn(signal, info);
}

[[noreturn]] void onTerminate()
{
    // The message of an exception may name a file of the user's; its type can't.
    if (const std::type_info *type = abi::__cxa_current_exception_type()) {
        int status = 0;
        char *readable = abi::__cxa_demangle(type->name(), nullptr, nullptr, &status);
        qstrncpy(exceptionName, readable ? readable : type->name(), sizeof exceptionName);
        std::free(readable);
    }
    previousTerminate();
    std::abort();
}

QByteArray describeSystem()
{
    return u"Video Converter crash report\nVersion: %1\nSystem: %2, %3 %4, %5\nQt: %6\n"_s
        .arg(Configuration::version(), QSysInfo::prettyProductName(), QSysInfo::kernelType(),
            QSysInfo::kernelVersion(), QSysInfo::currentCpuArchitecture(),
            QString::fromLatin1(qVersion()))
        .toUtf8();
}

void setAlternateStack()
{
    stack_t current = {};
    stack_t ours = {};
    ours.ss_sp = alternateStack;
    ours.ss_size = sizeof alternateStack;
    // Another one is a sanitizer's own, which it gives back itself.
    if (::sigaltstack(nullptr, &current) == 0 && (current.ss_flags & SS_DISABLE) != 0)
        ::sigaltstack(&ours, nullptr);
}

void setHandlers()
{
    struct sigaction action = {};
    action.sa_sigaction = onFatalSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    for (Fatal &fatal : fatals) {
        ::sigaction(fatal.signal, &action, &fatal.previous);
        if (fatal.previous.sa_handler == SIG_IGN)
            fatal.previous.sa_handler = SIG_DFL;
    }
    previousTerminate = std::set_terminate(onTerminate);
}

}

namespace CrashReporter {

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + u"/VideoConverter/crash reports"_s;
}

void start()
{
    if (!QDir().mkpath(folder())
        || !QFile::setPermissions(folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        return;
    const QString name = u"%1/crash-%2-%3.txt"_s.arg(folder(),
        QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-HHmmss"), QString::number(::getpid()));
    const QByteArray path = QFile::encodeName(name);
    if (path.size() >= PATH_MAX)
        return;
    qstrncpy(reportPath, path.constData(), sizeof reportPath);
    qstrncpy(preamble, describeSystem().constData(), sizeof preamble);
    owner = ::getpid();
    setAlternateStack();
    setHandlers();
}

}
