// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

/// The program's own standard input. The tools inherit descriptor 0, where a key would steer them.
namespace StandardInput {

/// Puts the input aside and /dev/null in its place, also where 1 or 2 are closed. Called first.
void setAside();
/// What a file holds, or for "-" and "/dev/stdin" all that comes from the input that was put aside;
/// at most `limit` bytes. Absent when it can't be read, or was closed.
[[nodiscard]] std::optional<QByteArray> contentsOf(const QString &name, qint64 limit);

}
