// SPDX-License-Identifier: MIT
#include "crash/ReportWriter.h"

#include <dlfcn.h>
#include <link.h>

#define UNW_LOCAL_ONLY
#include <libunwind.h>

void writeStack(ReportWriter &report, void *context)
{
    unw_cursor_t cursor;
    if (unw_init_local2(&cursor, static_cast<unw_context_t *>(context), UNW_INIT_SIGNAL_FRAME) != 0)
        return;
    for (unsigned index = 0; index < 128; ++index) {
        unw_word_t address = 0;
        if (unw_get_reg(&cursor, UNW_REG_IP, &address) != 0)
            return;
        // A return address belongs to the line after the call; one byte back is the call itself.
        if (index > 0 && unw_is_signal_frame(&cursor) <= 0)
            --address;
        dl_find_object module{};
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the unwinder knows numbers only.
        if (_dl_find_object(reinterpret_cast<void *>(address), &module) == 0) {
            const link_map &map = *module.dlfo_link_map;
            report.frame(index, *map.l_name ? map.l_name : "program", address - map.l_addr);
        } else {
            report.frame(index, "?", address);
        }
        if (unw_step(&cursor) <= 0)
            return;
    }
}
