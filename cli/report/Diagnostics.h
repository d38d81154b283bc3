// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Lines for developers, from the engine and the libraries; dropped until show() is called.
/// Thread: the main thread, before others run.
namespace Diagnostics {

/// Takes the lines from now on. Called first thing in main.
void take();
/// Sends further lines to standard error.
void show();
/// A tool's output as it stands. Thread: any.
void write(const QByteArray &output);

}
