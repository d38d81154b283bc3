// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

/// Work for the main thread, in the order of posting, never inline. Thread: any. Errors: work
/// without an application object is dropped.
namespace MainQueue {

void post(std::function<void()> block);
void postAfter(std::chrono::nanoseconds delay, std::function<void()> block);

}
