// SPDX-License-Identifier: MIT
#pragma once

#include "crash/CrashReports.h"

class QWidget;

/// Closing the window means no.
[[nodiscard]] SendReport askToSendReport(QWidget *parent, const QString &report);
