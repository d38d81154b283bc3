// SPDX-License-Identifier: MIT
#pragma once

class ReportWriter;

/// Writes the stack of the crash that a signal handler was called for, a line a frame, innermost
/// first: the program file or library by name alone, plus the offset in it that addr2line takes.
/// `context` is the handler's third argument.
/// Thread: the crashed one, inside the handler; takes no memory.
void writeStack(ReportWriter &report, void *context);
