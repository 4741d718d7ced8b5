// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <QByteArrayView>

#include <cstdint>

// The markers of the binary form, shared by its reader and its writer. A file is a header, the objects, a
// table with the offset of each object, and a trailer. The upper four bits of an object's first byte are its
// kind; the lower four are its size, or 15 if an integer object with the size follows.
namespace PropertyListBinary {

inline constexpr QByteArrayView kHeader = "bplist00";
inline constexpr unsigned kTrailerSize = 32;

enum Kind : unsigned {
    kSingle = 0x00,
    kFalse = 0x08,
    kTrue = 0x09,
    kInteger = 0x10,
    kReal = 0x20,
    kDate = 0x30,
    kData = 0x40,
    kAscii = 0x50,
    kUtf16 = 0x60,
    kUid = 0x80,
    kArray = 0xA0,
    kOrderedSet = 0xB0,
    kSet = 0xC0,
    kDictionary = 0xD0,
    // In the lower four bits.
    kSizeFollows = 0x0F,
};

// Dates are seconds, as a real, since this date.
inline constexpr Date kReferenceDate = Date(std::chrono::sys_days(std::chrono::year(2001) / 1 / 1));

} // namespace PropertyListBinary
