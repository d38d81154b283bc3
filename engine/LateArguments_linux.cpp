// SPDX-License-Identifier: MIT
#include "engine/LateArguments.h"
#include "support/Bundle.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype room = 16384;

// The linker's variable knows no quoting, and one of the user's own has its reasons.
bool canBePutInFront(const QString &library)
{
    return QFileInfo::exists(library) && !library.contains(u' ') && !library.contains(u':')
        && !qEnvironmentVariableIsSet("LD_PRELOAD");
}

}

LateArguments::LateArguments()
    : m_library(Bundle::main().bundlePath() + u"/Contents/Frameworks/arguments-later.so"_s)
{
    std::array<int, 2> ends{ -1, -1 };
    if (!canBePutInFront(m_library)
        || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return;
    m_ourEnd = ends[0];
    m_toolEnd = ends[1];
}

LateArguments::~LateArguments()
{
    closeToolEnd();
    if (m_ourEnd >= 0)
        ::close(m_ourEnd);
}

QStringList LateArguments::placeholders() { return { u"-version"_s, QString(room, u'.') }; }

QProcessEnvironment LateArguments::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_PRELOAD"_s, m_library);
    environment.insert(u"VIDEO_CONVERTER_ARGUMENTS_FD"_s, QString::number(m_toolEnd));
    return environment;
}

void LateArguments::enter() const { ::fcntl(m_toolEnd, F_SETFD, 0); }

bool LateArguments::isLoading() { return !hasNews(100) && !m_patience.hasExpired(); }

bool LateArguments::send(const QStringList &arguments)
{
    QByteArray block;
    for (const QString &argument : arguments)
        block += QFile::encodeName(argument) + '\0';
    char ready = 0;
    return block.size() <= room && hasNews(m_patience.remainingTime())
        && ::recv(m_ourEnd, &ready, 1, 0) == 1
        && ::send(m_ourEnd, block.constData(), static_cast<std::size_t>(block.size()), MSG_NOSIGNAL)
        == block.size();
}

// The end of a tool is seen only when nobody else holds its end of the line.
void LateArguments::closeToolEnd()
{
    if (m_toolEnd >= 0)
        ::close(m_toolEnd);
    m_toolEnd = -1;
}

bool LateArguments::hasNews(qint64 milliseconds)
{
    closeToolEnd();
    pollfd tool{ m_ourEnd, POLLIN, 0 };
    return ::poll(&tool, 1, static_cast<int>(milliseconds)) == 1;
}
