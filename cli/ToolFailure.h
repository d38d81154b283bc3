// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Why a run of the tool failed, in one plain sentence made from its last lines.
/// Thread: any.
[[nodiscard]] QString toolFailureSentence(const QByteArray &output);
