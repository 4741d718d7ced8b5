// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/PropertyListValue.h"
#include "platform/foundation/Result.h"

#include <QByteArray>
#include <QString>

// Property lists as bytes. Reading takes the XML and the binary form, whoever wrote them, and refuses what is
// damaged, nested deeper than kDepthLimit or larger than kSizeLimit, in bounded time and memory. Nothing
// outside the bytes is ever read: entities and references to other files are refused or ignored.
namespace PropertyList {

// Far above anything Ticklog writes (which is 6 deep), far below what a call stack holds.
inline constexpr int kDepthLimit = 128;
// 400,000 windows make about 110 MB.
inline constexpr qint64 kSizeLimit = 1024LL * 1024 * 1024;

// REQUIRES: nothing of the bytes. The text of a failure names the line or offset of the damage.
Result<PropertyListValue> read(const QByteArray& bytes);
// The same for a file; NotFound when there is none.
Result<PropertyListValue> readFile(const QString& path);

// The XML form, UTF-8, keys in the dictionary's order. Characters that XML cannot hold become U+FFFD, so that
// what was written can always be read. Reals come back to the last bit. Dates are cut off to whole seconds:
// other programs' readers refuse a whole file for a fraction.
QByteArray xml(const PropertyListValue& value);
// The binary form; equal texts are stored once. Reals and dates come back as they were.
QByteArray binary(const PropertyListValue& value);

// Writes the XML or the binary form to `path` through a temporary file, readable by the user alone (0600). On
// failure what stood there stays.
Outcome writeXmlFile(const PropertyListValue& value, const QString& path);
Outcome writeBinaryFile(const PropertyListValue& value, const QString& path);

} // namespace PropertyList
