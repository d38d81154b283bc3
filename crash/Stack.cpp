// SPDX-License-Identifier: MIT
#include "crash/ReportWriter.h"

#include <cstring>
#include <dlfcn.h>
#include <link.h>

#define UNW_LOCAL_ONLY
#include <libunwind.h>

namespace {

constexpr unsigned frameLimit = 128;

void writeFrame(ReportWriter &report, unsigned index, unw_word_t address)
{
    dl_find_object module{};
    report.text("  ").decimal(index).text(" ");
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the unwinder knows numbers only.
    if (_dl_find_object(reinterpret_cast<void *>(address), &module) != 0) {
        report.text("?+").hex(address).text("\n");
        return;
    }
    // The folders of a path may tell who the user is.
    const char *path = module.dlfo_link_map->l_name;
    const char *slash = std::strrchr(path, '/');
    const char *name = slash ? slash + 1 : path;
    report.text(*name ? name : "program").text("+");
    report.hex(address - module.dlfo_link_map->l_addr).text("\n");
}

}

void writeStack(ReportWriter &report, void *context)
{
    unw_cursor_t cursor;
    if (unw_init_local2(&cursor, static_cast<unw_context_t *>(context), UNW_INIT_SIGNAL_FRAME) != 0)
        return;
    for (unsigned index = 0; index < frameLimit; ++index) {
        unw_word_t address = 0;
        if (unw_get_reg(&cursor, UNW_REG_IP, &address) != 0)
            return;
        // A return address belongs to the line after the call; one byte back is the call itself.
        const bool isCall = index > 0 && unw_is_signal_frame(&cursor) <= 0;
        writeFrame(report, index, address - (isCall ? 1 : 0));
        if (unw_step(&cursor) <= 0)
            return;
    }
}
