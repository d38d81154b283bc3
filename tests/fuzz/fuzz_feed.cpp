// SPDX-License-Identifier: MIT
#include "updates/Appcast.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    if (const auto items = parseAppcast(bytes, u"linux"_s)) {
        for (const AppcastItem &item : *items) {
            if (item.version < items->front().version && items->front().version < item.version)
                std::abort();
        }
    }
    return 0;
}
