// SPDX-License-Identifier: MIT
#include "engine/Task.h"

#include "support/Bundle.h"
#include "support/Console.h"

#include <QFileInfo>

#include <atomic>
#include <csignal>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto waitTime = 100ms;
constexpr auto floodLimit = qsizetype{ 64 } * 1024 * 1024;

std::atomic<std::chrono::seconds::rep> silenceSeconds = 300;
std::atomic<bool> readingStopped = false;

void dieWithParent([[maybe_unused]] pid_t parent)
{
#ifdef Q_OS_LINUX
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(127);
#endif
}

}

QString toolPath(Tool tool)
{
    return Bundle::main().bundlePath()
        + (tool == Tool::Ffmpeg ? u"/Contents/ffmpeg/ffmpeg"_s : u"/Contents/ffmpeg/ffprobe"_s);
}

Outcome missingTool(Tool tool)
{
    return { .reason = Reason::ToolMissing, .detail = toolPath(tool) };
}

const QString Task::invalidArgument = u"NSInvalidArgumentException"_s;

Task::Task()
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setInputChannelMode(QProcess::ForwardedInputChannel);
}

Task::~Task() { terminate(); }

void Task::launch()
{
    const Sandbox sandbox(m_launchPath, m_access);
    if (!sandbox.isConfining())
        Console::print(u"the tool runs without a sandbox: this kernel offers none"_s);
    m_process.setChildProcessModifier([parent = ::getpid(), &sandbox] {
        dieWithParent(parent);
        sandbox.enter();
    });
    m_process.start(m_launchPath, m_arguments, QIODevice::ReadOnly);
    if (!m_process.waitForStarted(-1))
        throw LaunchException{ invalidArgument, m_launchPath + u": "_s + m_process.errorString() };
}

bool Task::tryLaunch(LaunchError *error)
{
    try {
        launch();
    } catch (const LaunchException &exception) {
        if (exception.name != invalidArgument)
            throw;
        if (error)
            *error = { exception.name, 0, exception.reason };
        return false;
    } catch (...) {
        // Anything else that is thrown says nothing about the launch.
    }
    if (error)
        *error = {};
    return true;
}

bool Task::isRunning() const
{
    return m_process.state() != QProcess::NotRunning || m_process.bytesAvailable() > 0;
}

QByteArray Task::availableData()
{
    const Clock::time_point start = Clock::now();
    if (m_process.bytesAvailable() == 0)
        m_process.waitForReadyRead(int{ waitTime.count() });
    QByteArray data = m_process.readAllStandardOutput();
    if (data.isEmpty()) {
        // A longer wait means that Ctrl-Z stopped this program and the tool.
        addSilence(std::min<Clock::duration>(Clock::now() - start, 2 * waitTime));
    } else {
        m_silence = m_lookedAt = {};
    }
    return data;
}

// Processor time of the tool and its children, and the sizes of what it writes.
QByteArray Task::work() const
{
    QByteArray work;
    // "1234 (ffmpeg) S ..."; the eleventh to fifteenth fields behind the name are times.
    if (QFile stat(u"/proc/%1/stat"_s.arg(m_process.processId())); stat.open(QIODevice::ReadOnly)) {
        const QByteArray fields = stat.readAll();
        work = fields.mid(fields.lastIndexOf(')') + 2).split(' ').mid(11, 4).join(' ');
    }
    for (const QString &path : m_access.writable)
        work += ' ' + QByteArray::number(QFileInfo(path).size());
    return work;
}

void Task::addSilence(std::chrono::steady_clock::duration silence)
{
    m_silence += silence;
    if (m_silence < m_lookedAt + std::chrono::seconds(silenceLimit()) / 10)
        return;
    m_lookedAt = m_silence;
    if (QByteArray now = work(); now != m_work) {
        m_work = std::move(now);
        m_silence = m_lookedAt = {};
    }
}

QByteArray Task::readDataToEndOfFile()
{
    QByteArray output;
    while (isRunning()) {
        output += availableData();
        if (output.size() > floodLimit || readingStopped || isSilentForTooLong())
            terminate();
    }
    return output;
}

void Task::terminate()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    const Clock::time_point patience = Clock::now() + 3s;
    // A tool that is blocked on a full pipe does not react to SIGTERM: keep draining its output.
    while (!m_process.waitForFinished(20) && m_process.state() != QProcess::NotRunning) {
        m_process.readAllStandardOutput();
        if (Clock::now() > patience)
            m_process.kill();
    }
    m_process.readAllStandardOutput();
}

int Task::terminationStatus() const
{
    return std::max(m_process.exitCode(), int{ m_process.exitStatus() == QProcess::CrashExit });
}

void Task::setSilenceLimit(std::chrono::seconds limit) { silenceSeconds = limit.count(); }

std::chrono::seconds Task::silenceLimit() { return std::chrono::seconds(silenceSeconds); }

void Task::stopReading() { readingStopped = true; }
