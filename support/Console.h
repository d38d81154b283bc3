// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Diagnostic lines for developers. Thread: any; lines of several threads do not mix.
namespace Console {

using Sink = std::function<void(const QString &line)>;

void print(const QString &line);
/// Sends all further lines elsewhere. Called once, before other threads run.
void setSink(Sink sink);

}
