// SPDX-License-Identifier: MIT
// Untested: nobody has run this on macOS yet.
#include "crash/ReportWriter.h"

#include <dlfcn.h>
#include <execinfo.h>

void writeStack(ReportWriter &report, void *)
{
    void *frames[128];
    const int count = ::backtrace(frames, 128);
    for (int index = 0; index < count; ++index) {
        Dl_info info{};
        if (::dladdr(frames[index], &info) == 0)
            continue;
        const auto offset
            = static_cast<char *>(frames[index]) - static_cast<char *>(info.dli_fbase);
        report.frame(
            static_cast<unsigned>(index), info.dli_fname, static_cast<std::uintmax_t>(offset));
    }
}
