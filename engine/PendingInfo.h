// SPDX-License-Identifier: MIT
#pragma once

#include "support/JSON.h"

#include <condition_variable>
#include <mutex>
#include <optional>

/// The media information of a film that is still examined. Thread: any.
class PendingInfo {
public:
    /// Absent for a film that is refused. Called once.
    void tell(std::optional<JSON> info);
    [[nodiscard]] bool isTold() const;
    /// Waits until it has been told.
    [[nodiscard]] std::optional<JSON> wait();

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_told;
    std::optional<std::optional<JSON>> m_info;
};
