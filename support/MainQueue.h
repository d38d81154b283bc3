// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

/// Work for the application object's thread, run there in the order of posting, never inline.
/// Thread: any.
/// Errors: work posted without an application object, or not yet run when it goes, is dropped.
namespace MainQueue {

void post(std::function<void()> block);
void postAfter(std::chrono::nanoseconds delay, std::function<void()> block);
[[nodiscard]] bool isMainThread();

}
