// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Plain-text diagnostic lines for developers; never shown to the user.
/// Thread: any; lines of several threads do not mix.
namespace Console {

using Sink = std::function<void(const QString &line)>;

/// Writes one line. Without a sink it goes to standard output.
void print(const QString &line);
/// Sends all further lines elsewhere. Called once, before other threads run.
void setSink(Sink sink);

}
