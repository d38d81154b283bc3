// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The program's own standard input. The tools inherit descriptor 0, and a key waiting there would
/// steer them.
namespace StandardInput {

/// Puts the input aside and /dev/null in its place; also gives descriptors 1 and 2 to /dev/null
/// where they are closed, so that no other file gets their numbers. Called first thing in main.
void setAside();
/// All that comes from the input that was put aside, at most `limit` bytes.
[[nodiscard]] QByteArray readAll(qint64 limit);

}
