// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>

namespace PropertyList {

// Far above anything Ticklog writes (which is 6 deep), far below what a call stack holds.
inline constexpr int kDepthLimit = 128;
// The most timers that are ever read make about 140 MB. What is larger is not written either.
inline constexpr qint64 kSizeLimit = 256LL * 1024 * 1024;
// The most timers take eight values each at the most. The dearest value, an empty dictionary, costs 100 bytes of memory:
// half a gigabyte is never reached.
inline constexpr std::size_t kValueLimit = 4'100'000;

} // namespace PropertyList
