// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

// Long enough for a busy machine; a test that passes never waits for it.
inline constexpr std::chrono::milliseconds kGenerousLimit = std::chrono::seconds(30);

// Turns the event loop until `condition` holds or `limit` is over, and answers whether it holds.
bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit = kGenerousLimit);
// Turns the event loop for `duration`. Only to show that something does not happen; never to wait for
// something.
void turnEventLoopFor(std::chrono::milliseconds duration);
