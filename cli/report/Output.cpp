// SPDX-License-Identifier: MIT
#include "cli/report/Output.h"

#include "cli/report/ShownText.h"
#include "support/Console.h"
#include "support/Interruption.h"
#include "support/Localized.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

std::atomic<bool> failed = false;
std::atomic<bool> showsDiagnostics = false;

void write(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        struct pollfd output {
            descriptor, POLLOUT, 0
        };
        // An interrupted program does not wait for a reader that does not read.
        const bool isInterrupted = Interruption::signal() != 0;
        if (::poll(&output, 1, isInterrupted ? 0 : 200) <= 0) {
            if (isInterrupted)
                return;
            continue;
        }
        // A pipe that is ready takes this many bytes without blocking.
        const auto count = static_cast<std::size_t>(std::min<qsizetype>(bytes.size(), 4096));
        const ssize_t written = ::write(descriptor, bytes.data(), count);
        if (written >= 0) {
            bytes = bytes.sliced(written);
        } else if (errno == EPIPE) {
            Interruption::request(SIGPIPE);
            return;
        } else if (errno != EINTR && errno != EAGAIN) {
            failed = failed || descriptor == STDOUT_FILENO;
            return;
        }
    }
}

}

namespace Output {

void line(const QString &text) { write(STDOUT_FILENO, text.toUtf8() + '\n'); }

void json(const QJsonDocument &document, QJsonDocument::JsonFormat format)
{
    write(STDOUT_FILENO, document.toJson(format).trimmed() + '\n');
}

void raw(const QString &text) { write(STDOUT_FILENO, text.toUtf8()); }

void errorLine(const QString &text) { write(STDERR_FILENO, text.toUtf8() + '\n'); }

void takeDiagnostics()
{
    Console::setSink([](const QString &line) {
        if (showsDiagnostics)
            errorLine(line);
    });
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type == QtFatalMsg)
            errorLine(message);
        else
            Console::print(message);
    });
}

void showDiagnostics() { showsDiagnostics = true; }

void diagnostics(const QByteArray &bytes)
{
    if (showsDiagnostics)
        write(STDERR_FILENO, bytes);
}

QString reportedSentence(const Outcome &outcome)
{
    QString sentence = printable(sentenceOf(outcome));
    if (outcome.reason == Reason::DestinationExists)
        return localized(QT_TRANSLATE_NOOP3("Localizable",
            "The destination exists already; --overwrite replaces it.",
            "Why a conversion's result can't be written"));
    if (outcome.reason != Reason::Incomplete)
        return sentence;
    return formatted(QT_TRANSLATE_NOOP3("Localizable", "%@; that much was kept.",
                         "After: The converting progress was finished at 12s"),
        { sentence });
}

ExitCode failure(const QString &file, const Outcome &outcome)
{
    errorLine(printable(file) + u": "_s + reportedSentence(outcome));
    return exitCodeOf(kindOf(outcome));
}

bool hasFailed() { return failed; }

QSize terminalSize()
{
    if (::isatty(STDOUT_FILENO) == 0 || qgetenv("TERM") == "dumb")
        return {};
    struct winsize size { };
    const bool known = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? QSize(size.ws_col, size.ws_row) : QSize(80, 24);
}

}
