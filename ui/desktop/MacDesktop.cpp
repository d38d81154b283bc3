// SPDX-License-Identifier: MIT
// Untested: the window's desktop on macOS, as yet without percentage and notification.
#include "ui/desktop/DesktopNotification.h"
#include "ui/desktop/FileBrowser.h"
#include "ui/desktop/Fonts.h"
#include "ui/desktop/KeepAwake.h"
#include "ui/desktop/LauncherProgress.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

void FileBrowser::reveal(const QString &filePath)
{
    QProcess::startDetached(
        u"/usr/bin/open"_s, { u"-R"_s, filePath }, QFileInfo(filePath).absolutePath());
}

std::shared_ptr<void> keepAwake(const QString & /*reason*/)
{
    // Its destructor kills the process, which also ends with this program, however that ends.
    const auto process = std::make_shared<QProcess>();
    process->start(u"/usr/bin/caffeinate"_s,
        { u"-i"_s, u"-w"_s, QString::number(QCoreApplication::applicationPid()) });
    return process;
}

void readFontsAhead() { }

void LauncherProgress::show(std::optional<int> /*percent*/, bool /*urgent*/) { }

void DesktopNotification::show(const QString & /*title*/, const QString & /*text*/) { }
void DesktopNotification::close() { }
void DesktopNotification::actionInvoked(uint /*id*/, const QString & /*action*/) { }
