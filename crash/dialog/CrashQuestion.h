// SPDX-License-Identifier: MIT
#pragma once

#include "crash/CrashReports.h"

class QWidget;

/// Shows a report and asks whether it may be sent; closing the window means no.
[[nodiscard]] SendReport askToSendReport(QWidget *parent, const QString &report);
