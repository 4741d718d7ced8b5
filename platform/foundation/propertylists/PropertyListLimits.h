// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>

namespace PropertyList {

// Far above Ticklog's own depth (6), far below what a call stack can hold.
inline constexpr int kDepthLimit = 128;
// A database with the most timers has about 140 MB. Larger files are not written either.
inline constexpr qint64 kSizeLimit = 256LL * 1024 * 1024;
// The most timers have at most eight values each. The most expensive value, an empty dictionary, takes 100
// bytes of memory, so half a gigabyte is never reached.
inline constexpr std::size_t kValueLimit = 4'100'000;

} // namespace PropertyList
