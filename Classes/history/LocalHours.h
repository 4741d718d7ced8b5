// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// No row of the history crosses a full hour of local time. All moments are milliseconds since 1970, UTC.
namespace LocalHours {

// Milliseconds: no row is longer.
inline constexpr std::int64_t kHour = 3'600'000;

// How many minutes local time is ahead of UTC at this moment.
std::int64_t offsetAt(std::int64_t time);
// The first full hour after `time`, where local time is ahead by `offset`.
std::int64_t after(std::int64_t time, std::int64_t offset);

} // namespace LocalHours
