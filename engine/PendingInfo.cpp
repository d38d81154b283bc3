// SPDX-License-Identifier: MIT
#include "engine/PendingInfo.h"

void PendingInfo::tell(std::optional<JSON> info)
{
    const std::lock_guard lock(m_mutex);
    m_info = std::move(info);
    m_told.notify_all();
}

bool PendingInfo::isTold() const
{
    const std::lock_guard lock(m_mutex);
    return m_info.has_value();
}

std::optional<JSON> PendingInfo::wait()
{
    std::unique_lock lock(m_mutex);
    m_told.wait(lock, [this] { return m_info.has_value(); });
    return *m_info;
}
