// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The program's own standard input. The tools inherit descriptor 0, where a key would steer them.
namespace StandardInput {

/// Puts the input aside and /dev/null in its place, also where 1 or 2 are closed. Called first
/// thing in main.
void setAside();
/// All that comes from the input that was put aside, at most `limit` bytes.
[[nodiscard]] QByteArray readAll(qint64 limit);

}
