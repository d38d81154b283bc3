// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Lines for developers; dropped until show() is called. Thread: main, before others run.
namespace Diagnostics {

/// Takes the lines from now on. Called first thing in main.
void take();
void show();
void write(const QByteArray &output);

}
