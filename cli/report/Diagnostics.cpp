// SPDX-License-Identifier: MIT
#include "cli/report/Diagnostics.h"

#include "cli/report/Output.h"
#include "support/Console.h"

#include <QtGlobal>

#include <atomic>

namespace {

std::atomic<bool> shown = false;

void takeMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    if (type == QtFatalMsg)
        Output::errorLine(message);
    else
        Console::print(message);
}

}

namespace Diagnostics {

void take()
{
    Console::setSink([](const QString &line) {
        if (shown)
            Output::errorLine(line);
    });
    qInstallMessageHandler(takeMessage);
}

void show() { shown = true; }

void write(const QByteArray &output)
{
    if (shown)
        Output::errorBytes(output);
}

}
