// SPDX-License-Identifier: MIT
#include "support/StandardInput.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

int original = -1;

}

namespace StandardInput {

void setAside()
{
    original = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    int nothing = ::open("/dev/null", O_RDWR);
    ::dup2(nothing, STDIN_FILENO);
    while (nothing >= 0 && nothing <= STDERR_FILENO)
        nothing = ::open("/dev/null", O_RDWR);
    if (nothing >= 0)
        ::close(nothing);
}

std::optional<QByteArray> contentsOf(const QString &name, qint64 limit)
{
    QFile file(name);
    const bool isOpen = name == u"-" || name == u"/dev/stdin"
        ? original >= 0 && file.open(original, QIODevice::ReadOnly)
        : file.open(QIODevice::ReadOnly);
    return isOpen ? std::optional(file.read(limit)) : std::nullopt;
}

}
