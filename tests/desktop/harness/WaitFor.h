// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

// Long enough for a busy machine; a test that passes never waits for it.
inline constexpr std::chrono::milliseconds kGenerousLimit = std::chrono::seconds(30);

// Turns the event loop until `condition` holds or `limit` is over, and answers whether it holds.
bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit = kGenerousLimit);
// Somebody works, or is away, for `duration`, and the event loop turns. Answers how many seconds it really
// was, which is what the account is held against: never to wait for something, nor to see that nothing comes.
[[nodiscard]] double passTime(std::chrono::milliseconds duration);
