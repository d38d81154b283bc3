// SPDX-License-Identifier: MIT
#include "ui/desktop/Fonts.h"

#include <clocale>
#include <fontconfig/fontconfig.h>
#include <malloc.h>
#include <thread>

void readFontsAhead()
{
    // One heap: what the reading frees serves the window.
    mallopt(M_ARENA_MAX, 1); // NOLINT(concurrency-mt-unsafe): no other thread yet
    // The application sets the same once more; a change would meet the numbers that are being read.
    std::setlocale(LC_ALL, ""); // NOLINT(concurrency-mt-unsafe)
    std::thread(FcInit).detach();
}
