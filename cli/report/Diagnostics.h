// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Lines for developers, the engine's and the libraries'. They are dropped until they are asked
/// for. Thread: the main thread, before others run.
namespace Diagnostics {

/// Takes the lines from now on. Called first thing in main.
void take();
/// Sends further lines to standard error.
void show();
/// A tool's output as it stands. Thread: any.
void write(const QByteArray &output);

}
