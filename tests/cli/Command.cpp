// SPDX-License-Identifier: MIT
#include "tests/cli/Command.h"

#include "support/Bundle.h"
#include "tests/fixtures/Media.h"

#include <QFile>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

Command::Command()
{
    // The texts are compared in English.
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    qputenv("TERM", "xterm");
    // Permissions bind the superuser too.
    if (::geteuid() == 0)
        m_wrapper = QStringList{ u"setpriv"_s, u"--bounding-set=-dac_override,-dac_read_search"_s };
}

QString Command::program()
{
    static const QString program = [] {
        const QString copy = Bundle::main().bundlePath() + u"/Contents/MacOS/video-converter-cli"_s;
        QFile::remove(copy);
        if (!QFile::copy(QStringLiteral(VC_CLI_PROGRAM), copy))
            qFatal("The program can't be copied to %s", qPrintable(copy));
        return copy;
    }();
    return program;
}

QStringList Command::listing() const
{
    return shell(u"find . -type f -printf '%p %s\\n' -o -printf '%p\\n' | sort"_s).split(u'\n');
}

QString Command::shell(const QString &script) const
{
    return QString::fromUtf8(Media::run(u"sh"_s, { u"-ec"_s, u"cd \"$0\"\n"_s + script, path() }));
}

std::unique_ptr<QProcess> Command::start(
    const QString &line, const QStringList &further, const std::function<void()> &inChild) const
{
    auto process = std::make_unique<QProcess>();
    process->setWorkingDirectory(path());
    process->setChildProcessModifier([inChild] {
        // A test run in the background of a script has them ignored.
        ::signal(SIGINT, SIG_DFL);
        ::signal(SIGQUIT, SIG_DFL);
        inChild();
    });
    const QStringList words
        = m_wrapper + QStringList{ program() } + QProcess::splitCommand(line) + further;
    process->start(words.first(), words.mid(1));
    return process;
}

Finished Command::wait(QProcess &process)
{
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(60'000))
        process.kill();
    return { .exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        .out = QString::fromUtf8(process.readAllStandardOutput()),
        .err = QString::fromUtf8(process.readAllStandardError()) };
}

Finished Command::run(
    const QString &line, const QStringList &further, const QByteArray &input) const
{
    const auto process = start(line, further);
    process->write(input);
    process->closeWriteChannel();
    return wait(*process);
}
