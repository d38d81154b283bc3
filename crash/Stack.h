// SPDX-License-Identifier: MIT
#pragma once

class ReportWriter;

/// Writes the stack of a crash, innermost frame first: the program's or library's name and the
/// offset that addr2line takes. `context` is the signal handler's third argument. Takes no memory.
void writeStack(ReportWriter &report, void *context);
